<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>追加して次へ(&amp;N)</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>新しいアドレスで検出</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>これらのデバイスは別のアドレスで応答しているようです。心当たりのあるものだけを承認してください。承認後、ユーザー名とパスワードは新しいアドレスに送信されます。</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>以前のアドレス</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>新しいアドレス</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MACアドレス</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>選択項目を承認(&amp;A)</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>すべて承認(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>選択項目を破棄(&amp;D)</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>What</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>ノードデータベース</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>ノードデータベース「%1」はネットワークドライブ上にあります。2つのプログラムが同時に使用すると破損するおそれがあります。このコンピューターのディスクに移動してください。</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1はウィンドウ用のオプションですが、ウィンドウは開かれません。</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1、%2行目: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>列「%1」は使用されません。</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1件を書き込みました</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>名前もアドレスもない%1件を除外しました</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>ほかの設定に関係なく、この言語 (deやpt_BRなど) を使用します。</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>一覧 (CSV) のカメラを追加して終了します。ウィンドウは不要です。</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>すべてのカメラを一覧 (CSV) に書き込んで終了します。</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>--exportでパスワードを除外します。</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>データベース (使用中でも可) をファイルにコピーして終了します。</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>データベース (使用中でも可) をバックアップの内容に置き換えて終了します。現在の内容はバックアップとして残ります。</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>予期しない引数: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>--%1の後の値が空です。</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>確認した項目: %1、チェーンより古いもの: %2、封印のないリンク: %3</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>データベースのログが書き換えられていないかを調べ、結果を表示して終了します。</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>変更番号%1までの詳細は取り除かれています</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>詳細を%1件取り除きました(変更番号%2まで)</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>ここまでです: 履歴が書き換えられています。--verify-log で内容を確認できます。</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>指定した日数より古い変更について、変更前と変更後の値を履歴から取り除いて終了します。誰がいつ変更したかは残ります。</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history には日数を指定します。</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>ビデオ監視システムのノードを表示、追加、編集、削除します。
--importなど、処理を行って終了するオプションを指定しない場合はウィンドウを開き、ツールキットのオプション (-platform、-styleなど) も使用できます。</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>このノードデータベースを開きます。ファイル (ない場合は作成) または共有データベース (postgresql://user@host/database) を指定します。</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>データベースを履歴とともに、続けて指定するアドレス (postgresql://user@host/database) のサーバー上の空のデータベースへ移して終了します。再度呼び出すと続きから行います。</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>--share FILEの後には、データベースのアドレス (postgresql://user@host/database) を指定します。</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>共有データベースにバックアップを復元することはできません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>追加%1、更新%2、変更なし%3、エラーのある行%n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>監査ログ</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>履歴に表示...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>What</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1(変更なし)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>過去の状態</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>すべてのノードを当時の状態で別のウィンドウに表示します。これによって何も変更されません。表示された内容は元に戻すことができます。</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>この時刻まで:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>この操作の直後の状態:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>行われた操作</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>パスワードを読み取れません</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>パスワードを要求しません</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>確認中に変更されました</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>カメラはすでに確認中です。</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>確認できるアドレスを持つカメラがありません。</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>各カメラで1回ずつ試しますか?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>試す(&amp;T)</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>確認はキャンセルされました。</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>レポート(&amp;R)...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>%2台中%1台のカメラがパスワードを受け入れました。</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>%2台中%1台のカメラが正常に応答しています。</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>選択したカメラの中に、別のデバイスと判定されたものはありません。判定は「ネットワーク &gt; カメラの確認」で行います。</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>別のデバイスの承認</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>これまでと異なる%n台のデバイスが応答しました。交換や新しい証明書など、理由がわかっている場合にだけ承認してください。次回の確認から、保存されているユーザー名とパスワードが送信されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>承認(&amp;A)</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>%n台のデバイスを承認しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>確認する(&amp;C)</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>選択したカメラの中に、平文パスワードを要求すると判定されたものはありません。判定は「ネットワーク &gt; カメラの確認」で行います。</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n台のデバイスは、パスワードを平文でのみ受け付けます。SSLがない場合、途中で盗聴する者はパスワードを読み取り、同じパスワードのすべてのカメラに使用できます。自社のネットワーク内でのみ許可してください。許可は、カメラのアドレスとポートが変わらない間だけ有効です。</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>平文パスワードの許可</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>許可(&amp;A)</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>%n台のデバイスへの平文パスワードの送信を許可しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>カメラを確認すると (F5)、ここに画像が表示されます。</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>パスワードを読み取れません。</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>以前と別のデバイス</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>ロックアウト中</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>パスワード不一致</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>平文パスワードを要求</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>解釈不能</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>応答あり</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>%1 (%2) が削除しました。ここに入力した内容は保存できません。「編集」&gt;「履歴」でノードを元に戻せます。</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>この間に%1 (%2) が変更しました。</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>現在、%1 も編集中です。</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>CheckPanel</name>
    <message>
        <source>Cameras checked</source>
        <translation>確認済みのカメラ</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>キャンセル(&amp;L)</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>この行を消す</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>確認済みのカメラ: %1/%2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>カメラの確認結果</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>応答のあるカメラも表示する(&amp;A)</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>一覧で表示(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>名前を付けて保存(&amp;S)...</translation>
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
            <numerusform>デバイスではないか、アドレスのない%n個のノードを除外しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表 (*.csv);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1に書き込めませんでした: %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>サーバーが対応している場合</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>常に</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>常に (証明書を検証)</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>使用しない</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>共有データベースに接続</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>最近使用(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>サーバー(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>ポート(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>データベース(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>ユーザー(&amp;U):</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>パスワード(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>暗号化(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>パスワードを保存(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>テスト(&amp;T)</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続中...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>データベースの読み取りと変更ができます。</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>データベースは読み取れますが、変更する権限はありません。</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>パスワードを封印する鍵がないため、パスワードを保存できません。次回も入力が必要です。</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>バックアップの復元</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>このデータベースの内容はすべて、利用者全員について「%1」の内容に置き換えられます。現在の内容は、まずバックアップとして保存されます。</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>新しいノードデータベース</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>「%1」はすでにあります。それを開くか、別の名前を選んでください。</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>データベースをコピーしています...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>データベースを「%1」にコピーしました。</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>バックアップを復元しています...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>データベースは「%1」の内容になりました。</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>共有データベースはサーバー側で復元します。管理者に依頼してください。</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>読み取れるものはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>%n個のノードはまだ読み取れます。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>正常なバックアップがありません。</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>最新の正常なバックアップは%1に作成されました。</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>いずれかを選択すると、破損したファイルは別の名前で保存されます。選択しない場合、何も変更されません。</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>ノードデータベース</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>ノードデータベースが破損しています。読み取れるデータとバックアップを探しています...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>別のファイルを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>空のデータベースで開始(&amp;S)</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>読み取れるデータを使用(&amp;C)</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>バックアップを復元(&amp;B)</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>ノードデータベース「%1」は破損しています。</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>ノードデータベース「%1」のテーブルは別のプログラムに変更されています。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>ノードデータベース「%1」には以前データがありましたが、空になっているか、なくなっています。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>ノードデータベース「%1」が破損しているか、別のファイルに置き換わっています。</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>ノードデータベースを開く</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>ノードデータベース (*.kodb);;すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>詳細(&amp;E)</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>選択したノードの内容をリストの横に表示します</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>リストでノードを選択すると、ここに内容が表示されます。</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>%n個のノードを選択中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>最初の%n個に共通するもの:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>異なる</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>アドレスがありません</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>パスワードを読み取れません</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>すでに削除されています</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>問い合わせていません</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>録画へのアクセス</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>選択したカメラのうち%n台の工場出荷時のIPアドレスが不明です:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>これらの録画はカメラ経由で再生できます。ただし、ファイルサーバー上のカメラのフォルダー名にはこのアドレスが使われます。既定のパスではこれらのカメラが名前のない1つのフォルダーを共有し、個別のパスでは現在のパスが失われます。応答してパスワードを受け入れるカメラは、フォルダー名に使用できる情報を返します。</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>カメラに問い合わせる(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>除外する(&amp;L)</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>すべて続行(&amp;A)</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>ユーザーとパスワード</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>選択した%n台のデバイスのユーザー名とパスワードは同じではありません。ユーザー名が%1種類、パスワードが%2種類あります。</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>次のウィンドウには最初のデバイスのユーザー名とパスワードが表示され、OKを押すと表示されている内容がすべてのデバイスに設定されます:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>すべて同じにする(&amp;G)...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n台のデバイス: 録画へのアクセスを設定しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n台は変更していません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n台のデバイス: ユーザー名とパスワードを設定しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (デバイス%n台)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>まとめて設定できるのはIPカメラだけです。その他は1つずつ選択してください。</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>%1のプロパティ</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>%n個のノードの編集</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>ここで変更した内容は、次のすべてに反映されます。同じでない値は「異なる」と表示され、変更しない限りそのまま残ります。</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>変更内容を調べています...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>すべてのノードを表示</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>ノードを読み込んでいます...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>このデータベースにはまだ何もありません。</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>該当するノードはありません。</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>カメラの一覧をインポート...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>ネットワーク上のデバイスを検索...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>カメラを追加...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>名前もアドレスも入力されていません。</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>名前が入力されていません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>「%1」がすでにこのアドレス、ポート、チャンネルを使っています。</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>このまま保存しますか?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>このまま保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>編集を続ける(&amp;G)</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>環境: %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>プログラム全体のネットワーク環境</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>プログラム全体の環境は現在「%1」です。</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>「%1」に戻す</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>環境を「%1」に戻しました。</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>自動入力</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>手動で入力された可能性のある値も置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>問い合わせたデバイス</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>デバイスからの情報</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>%n台のデバイスに問い合わせています。まだ何も保存されません。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>入力できる項目はありません。</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>デバイスから得られた、まだ保存されていない情報です。OKを押すと、チェックした項目が保存されます。</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n台のデバイスから情報が得られませんでした:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>%n台のデバイスに入力しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>What</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>変更後</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>「%1」のみ</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>選択した%n個のノードのみ</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>行われた操作</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>変更された内容</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>検索中...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>見つかりませんでした。</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>続きがあります: 下にスクロールしてください。</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>以上です。</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>選択した%n件の変更</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>監査ログの項目までの変更のみ</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>行われた操作:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>変更された内容:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>元に戻す...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>選択した変更を元に戻す...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>エクスポート...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>この時点の状態...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>保持...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>詳細は履歴から取り除かれたため、元に戻せません。</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>履歴のエクスポート</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>一覧 (*.csv);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>履歴を書き込めませんでした: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>履歴をエクスポートしています...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>ノード、値、操作</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>すべての種類</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>すべてのプロパティ</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>検索:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>ユーザー:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>種類:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>プロパティ:</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>開始:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>終了:</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>履歴の保持</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>変更の詳細とは、変更前と変更後の値です。詳細がないと、変更を表示することも元に戻すこともできません。誰がいつ何のために変更したかと監査ログは常に残ります。</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>次より古い詳細を取り除く(&amp;O)</translation>
    </message>
    <message>
        <source> days</source>
        <translation> 日</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日数</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>次を超えたら最も古い詳細から取り除く(&amp;M)</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Megabytes</source>
        <translation>メガバイト</translation>
    </message>
    <message>
        <source>This is done a minute after the start of the program and every six hours.</source>
        <translation>プログラムの起動から1分後と、その後6時間ごとに行われます。</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>端末</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>行われた操作</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>%1行目: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>使用されない列: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>インポートはキャンセルされました。それまでに追加されたものは残ります。</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>カメラのインポート</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>エラーのある%n行は除外されます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n行は意図と異なる可能性があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>追加%1、更新%2、変更なし%3、エラーのある行%n。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>このリストをインポートすると、%n台のデバイスを追加、%1台を変更し、%2台はそのままになります。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>キーチェーンを待っています。求められたらロックを解除してください。</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>キーチェーン</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>キーチェーンを待っています。</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>保存されたパスワードのキーが入っています。求められたらロックを解除してください。

キーがないと、保存されたパスワードは空で表示され、新しいパスワードは保存できません。</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>パスワードなしで続行(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>システムに合わせる(&amp;A)</translation>
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
        <translation>大1 + 5</translation>
    </message>
    <message>
        <source>1 large + 7</source>
        <translation>大1 + 7</translation>
    </message>
</context>
<context>
    <name>LogNotice</name>
    <message>
        <source>The log was altered</source>
        <translation>ログが書き換えられています</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>ほか %n 件。koclient --verify-log で確認できます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>別のプログラムによってノードデータベースのログが書き換えられました:</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>インポート(&amp;I)...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>現地調査 (CSV) のカメラを追加します</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>すべてのカメラをCSVファイルに書き込みます</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>選択項目をエクスポート(&amp;S)...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>選択したカメラをCSVファイルに書き込みます</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>環境設定(&amp;P)...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>既定のパスと帯域幅</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>プログラムを閉じます</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>ノード(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>追加(&amp;A)...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>ノードを追加します</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>編集(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>削除(&amp;R)...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>選択したノードを削除します</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>プロパティ(&amp;P)</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>選択したノードを変更せずに表示します</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>ユーザーとパスワード(&amp;U)...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>選択したデバイスに共通のユーザー名とパスワードを設定します</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>録画へのアクセス(&amp;C)...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>選択したカメラの録画の再生元</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>自動入力(&amp;F)...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>選択したデバイスに情報を問い合わせ、選んだものを保存します</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>複製(&amp;D)...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>選択したノードと同じノードを追加します</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>Webページを開く(&amp;W)</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>選択したデバイスのページをブラウザーで開きます</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>行をコピー(&amp;O)</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>選択した行を表計算ソフト用にコピーします</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>アドレスをコピー(&amp;S)</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>選択したノードのアドレスをコピーします</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>ネットワーク(&amp;W)</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>ネットワークプロキシ(&amp;P)...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>アプリケーションのプロキシサーバー</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>環境(&amp;E)...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>ネットワーク環境</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>デバイスの検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>ネットワークのスキャン中に見つかったノード</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>新しいアドレスで検出(&amp;S)...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>ここに登録されているものと別のアドレスでスキャンに見つかったデバイス</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>カメラの確認(&amp;C)</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>選択した、またはすべてのカメラの情報とパスワードを確認します</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>このカメラとして承認(&amp;A)...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>以前と別のデバイスを、今後このカメラとして扱います</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>列(&amp;C)...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>一覧に表示する列</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>監査ログ(&amp;A)...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>だれが、何を、いつ変更したか</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>ノードデータベース(&amp;D)...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>保存されているすべてのもの</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>カメラ経由</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>既定のファイルサーバーパス</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>%n台のデバイスを新しいアドレスで検出しました: ネットワーク &gt; 新しいアドレスで検出</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - ノード</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>任意の列の語を検索します。&quot;種類:カメラ&quot;は1つの列を検索し、&quot;状態:不一致|ロック&quot;はいずれかを検索し、&quot;-中庭&quot;は除外します</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>すべての種類</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> 種類(&amp;Y): </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>カメラが選択されていません。先に一覧から1つ以上選択してください。</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>この種類のノードは追加できません。</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>このノードにはアドレスがありません。デバイスのアドレスは「ノード &gt; 編集」で設定します。</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n行をコピーしました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>%n個のアドレスをコピーしました。</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;ビデオ監視システムのノードを表示、追加、編集、削除します。&lt;/p&gt;&lt;p&gt;GNU LGPL 2.1以降に基づくフリーソフトウェアです。&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>平文パスワードを許可(&amp;L)...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>ほかの方法では受け付けないカメラに、誰でも読める形でパスワードを送信します</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>最後の変更を表示し、元に戻します</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>最後に元に戻した操作をやり直します</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>履歴(&amp;H)...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>誰が何を行ったかを表示し、元に戻します</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>選択項目の履歴(&amp;S)...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>選択したノードに行われた操作</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>過去の状態(&amp;B)...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>すべてのノードを以前の状態で表示し、元に戻します</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>選択したノードを変更します</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>複数の変更をプレビュー(&amp;V)</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>複数のノードに行われる変更を、保存する前に表示します</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>%n個のノードを編集しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>接続(&amp;C)...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>他の端末と共有されているデータベースを開きます</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>新規(&amp;N)...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>空のノードデータベースを作って開きます</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>別のノードデータベースを開きます</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>バックアップ(&amp;B)...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>ノードデータベースをファイルにコピーします</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>復元(&amp;T)...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>ノードデータベースをバックアップの内容に戻します</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>場所とタグ(&amp;L)...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>選択したデバイスの場所と分類</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>マニュアル(&amp;M)</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>手前のウィンドウの使い方を説明します</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>「%1」を追加しました。</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - ノードデータベース</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>デバイス%1、その他のノード%2、表示%3、選択%4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>「%1」を変更しました。</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>まとめて編集できるのは同じ種類のノードだけです。リストの上の「種類」で1つの種類だけを表示できます。</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>%1のWebページを開けませんでした。デスクトップの設定でブラウザーを選択してください。</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>マニュアルを検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>マニュアルのページ</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>進む(&amp;F)</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>これらの語をすべて含むページはありません。</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>マニュアルは英語です。メニューとボタンの名前は英語版のものです。</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>メインウィンドウの「ファイル &gt; 環境設定」で設定します。</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>「プロパティ」でカメラの工場出荷時のIPアドレスとして表示されるものです。メインウィンドウの「ノード &gt; 自動入力」でカメラに問い合わせます。</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>パスを入力するか、「詳細...」を押してフォルダーを選択してください。</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>当時</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Since Then</source>
        <translation>その後</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>当時の状態、%1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>%1、%3 による「%2」の直後のノードです。ここでは表示と復元ができますが、編集はできません。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>現在と異なるもののみ</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>ノード:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>プロパティ:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>当時のノード</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>当時と現在のプロパティ</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>その後の操作の読み込み状況</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>すべて元に戻す...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>選択項目を元に戻す...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>その後の操作を読み込んでいます...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>設定または環境も異なります。</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>その後の変更 %n 件が現在の内容と一致しません。それ以前の内容は不明です。</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>%1 の状態へ</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>当時のノード %n、現在と異なるもの %1、表示 %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(名前なし)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ほか%n件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>このノードに対する操作:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>その操作による変更:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>行われた操作</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>変更された内容</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>最終変更</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>ノードの削除</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>ノードを削除しています...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>%nノードを削除しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>画像を取得しています...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>%1に取得</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>カメラの画像</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>画像を取得しています...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>%1に取得</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>場所とタグ</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>場所とタグを保存しています...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n台のデバイス: 場所とタグを設定しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>場所とタグ</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>選択した%n台のデバイスはどこにありますか? 外側から内側へ、スラッシュで区切って書きます: サイト/建物/階。タグはコンマで区切ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>場所(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>タグ(&amp;T):</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(異なる値、そのまま残します)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>場所(&amp;O)</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>サイト、建物、階を一覧の横に表示します</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>すべてのノード</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>場所のないデバイス</translation>
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
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>既定のファイルサーバーパス(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>既定のリモートプレビューサーバー(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>接続(&amp;C):</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>低速リモート (モデム、ISDN、GPRS/2G、EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>高速リモート (DSL、UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>低速ローカル (WLAN/WiFi、イーサネット)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>高速ローカル (ファストイーサネット、ギガビットイーサネット)</translation>
    </message>
    <message>
        <source>Default File Server Path</source>
        <translation>既定のファイルサーバーパス</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>サイト/建物/階:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>タグ(コンマ区切り):</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: 次のように変わります。OKを押すとチェックした項目を元に戻します。</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: 元に戻せるものはもうありません。</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>次の項目はほかの人が変更したため、現在のままにします:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>元に戻せるものすべて</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: 次のように変わります。OKを押すとチェックした項目を変更します。</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: 変わるものはありません。</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>すべての変更</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>What</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>変更後</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>できない理由</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>変更された内容</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>変更された内容を読み込んでいます...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>この共有データベースは閲覧できますが、変更はできません。管理者からロールko_editorを付与してもらえます。</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>読み取り専用</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使ったデータベース(&amp;R)</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>ほかのデータベースはまだ開かれていません</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>ノードの削除</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>このノードを削除しますか? [編集] &gt; [元に戻す]で元に戻せます。</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>これら%n個のノードを削除しますか? [編集] &gt; [元に戻す]で元に戻せます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>他で使われていない%n個の録画フォルダー:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>録画フォルダーも削除(&amp;F)</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>保存した検索(&amp;S)</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>保存した検索</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>名前を付けた検索と、この検索への名前付け</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>この検索を保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>現在の検索に名前を付けます</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>名前の変更または削除(&amp;R)...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>保存した検索の名前を変更し、削除します</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>検索を保存</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>名前(既存の名前はこの検索に置き換わります):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>保存した検索</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>保存した検索</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>名前の変更(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>削除(&amp;R)...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>この名前の検索がすでにあるか、名前が空です。元のままにしました。</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>検索「%1」を削除しますか?見つかるノードは残ります。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>デバイスの検索</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>検索で%n台の新しいデバイスが見つかり、データベースに追加されました:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>残す(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>取り除く(&amp;T)</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>%n台のデバイスが見つかり、追加されました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>%n台のデバイスを取り除きました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: 待機中</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2/%3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: 検索中</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: 完了</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: キャンセル</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: 使用できません (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>ファイル「%1」がありません。</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>「%1」の履歴では、すべての内容の由来がわかりません。履歴より古いファイルか、バックアップが復元されたファイルです。このようなファイルは共有できません。カメラを新しいファイルにインポートしてください。</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>サイト「%1」を変更する権限がありません。管理者にロールko_editorを依頼してください。</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>サイト「%1」は空ではありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>「%1」は「%2」とは別のサイトのものです。</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>サイトとファイルの内容が異なります: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>ファイルまたはサイトが変更され続けているため、比較できませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n行とその履歴が「%1」にあり、こちらと同じ内容です。</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>「%1」には、このインストールのキーがないためまだ暗号化されていない、古いバージョンのパスワードがあります。先にキーを戻してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>「%1」にはサイトのキーが必要なパスワードがあります。何も送信されませんでした。</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>共有データベース</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>これらの変更は、他のユーザーが先にノードを削除していたため反映できませんでした。削除されたノードは「編集」&gt;「履歴」で元に戻せます。</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>反映できなかった変更</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>削除者</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>選択項目を破棄(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>新しいコピー(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>新しいコピー</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>このウィンドウを閉じて、サーバーの現在の内容から新しいコピーを作成しますか。未送信の変更は含まれません。変更を含む現在のコピーはフォルダー「%1」に残ります。</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>パスフレーズ(&amp;P)...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1、%n件の変更を反映できませんでした</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1、パスフレーズが必要です...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>「%1」には現在、このコピーの元とは別のサイトがあります。何も送信されていません。サーバーが新しく設定された場合は、管理者に元のサイトの復旧を依頼してください。</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>データベース「%1」にはサイトがないか、読み取る権限がありません。管理者にロールko_viewerまたはko_editorを依頼してください。空のデータベースはkoclient --shareでサイトになります。</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>サイト「%1」はこのプログラムの別のバージョンで作成されました。このコンピューターにそのバージョンをインストールするか、サイトを更新してもらってください。</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>サイト「%1」は読み取りのみ可能ですが、このコンピューターにはまだ送信されていない変更があります。管理者にロールko_editorを依頼してください。</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>サイト「%1」のこのコピーにはバックアップが復元されたため、他の端末へ伝えられません。共有は停止されました。</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>共有が停止しました...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>接続済み、読み取り専用</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>%n件の変更を送信中</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>更新中</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>%1からサーバーに接続できません。%n件の変更が待機中</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>%1からサーバーに接続できません</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>サイト「%1」のサーバーに接続できません。作業は続けられます。変更はこのコンピューターに保存され、サーバーが復旧すると送信されます。</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>サイト「%1」への他のユーザーの変更を閲覧できますが、自分で変更することはできません。</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>サイト「%1」を他のユーザーと共有しています。</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>サイト「%1」に接続できません。</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>サーバーを待っています...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>送信中: 残り%n件の変更</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>受信中: %1/%2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>サイト「%1」の過去の内容が、以前この端末に伝えられたものと異なります。サーバー上で履歴が改変されています。以後、このサイトとの送受信は行われません。管理者にこの表示を見せてください。このコンピューターのコピーには元の履歴が残っています。</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>このコンピューター上のサイト「%1」のコピーを読み書きできません。ディスクが正常で空きがあることを確認し、プログラムを再起動してください。</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>サイト「%1」のサーバーがこのコンピューターからの要求を拒否しました。サーバーがまだ受け取っていない変更はここに保存されています。サーバーの応答を管理者に見せ、問題が解決したらプログラムを再起動してください。</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>サイト「%1」の新しいパスフレーズ:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>もう一度:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>2つのパスフレーズが一致しません。</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>サイト「%1」のパスフレーズ:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>サイトのパスフレーズが指定されていません。パスワードは読み取られず、保存もできません。端末で入力するか、変数KO_SITE_PASSPHRASEを設定してください。</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>このインストールのキーがないため、このコンピューターにキーを保管できません。次回もパスフレーズの入力が必要です。</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>それはサイトのパスフレーズではありません。</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>パスフレーズは%n文字以上にしてください。</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>サイトにはまだキーがありません。</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>ちょうど今、ほかのユーザーがキーまたはパスフレーズを変更しました。現在有効なパスフレーズを確認してください。</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>キーを開くには、このコンピューターにある、または要求できる量を超えるメモリが必要です。</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>このサイトは、端末がキーを共有する前に作られました。管理者がkoclient --shareで更新するまで、パスワードは保存できません。</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>このコンピューターにはパスワードのキーがありません。サイトのパスフレーズを入力するまで、パスワードは空で表示され、新しいパスワードは保存できません。</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>サイトには、端末がパスワードを暗号化するためのキーがまだありません。だれかがキーを作るまで、新しいパスワードは保存できません。</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>共有データベース</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>「%1」に接続中...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>パスフレーズの変更</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>サイトのパスフレーズ</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>「%1」のカメラのパスワードは、端末が共有するキーで暗号化されています。このコンピューターで一度だけ、サイトのパスフレーズを入力してください。入力しないと、パスワードは空で表示され、新しいパスワードは保存できません。</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>サイト「%1」には、端末がカメラのパスワードを暗号化するためのキーがまだありません。複数の語からなるパスフレーズを考え、パスワードを見てよい人全員に伝えてください。サーバーには送られません。全員が忘れると、新しい端末はパスワードを読み取れません。</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>パスフレーズだけを変更した場合、「%1」のキーを持つ端末はそのまま使えます。新しいキーにすると、すべてのパスワードが改めて暗号化され、各端末で新しいパスフレーズの入力が必要になります。コンピューターを紛失したときに選んでください。</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>パスフレーズ(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>現在のパスフレーズ(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>新しいパスフレーズ(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>もう一度(&amp;A):</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>新しいキーも作る(&amp;K)</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>2つの新しいパスフレーズが一致しません。</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>お待ちください...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>ノードデータベース</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>このウィンドウが開いている間は、入力した内容は失われません。</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>保存を待っている変更 (すべて保存されるか、まったく保存されません) の対象:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>変更が保存されていません</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>変更を破棄(&amp;D)</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>すべての変更が保存されました。</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>保存できなかった変更があります。今プログラムを閉じると失われます。</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>ノードデータベース</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>変更を保存しています...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>カメラの一覧 (*.csv);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>カメラのインポート</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>カメラをインポートしています...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>カメラのエクスポート</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>パスワードも書き込みますか? ファイルを読める人は、その中のすべてのカメラを使用できるようになります。</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>カメラをエクスポートしています...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>%n台のカメラを書き込みました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>リストを読み込んでいます...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>元に戻す(&amp;U):「%1」</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>やり直し(&amp;R):「%1」</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>やり直し: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>元に戻す...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>入力した内容はまだ保存されていません。</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>破棄(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>編集を続ける(&amp;G)</translation>
    </message>
</context>
</TS>
