<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>「%1」がすでにこのアドレスとポートを使用しています。</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>アドレスに空白は使用できません。</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>IPv6アドレスでも、ポート付きのホストでもありません。</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>IPアドレスは0~255の4つの数字です。</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>ホスト名に使用できるのは英数字、ピリオド、ハイフンのみです。</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>ポートは1~65535の数字です。</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>このURLにはホストが見つかりません。</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>IPv4ネットワークに接続されていません</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>システムがソケットを提供しません: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>CameraSurvey</name>
    <message>
        <source>Nothing was written, because these passwords cannot be read: %1. Unlock your keychain, bring the key file back, or leave the passwords out.</source>
        <translation>次のパスワードを読み取れないため、何も書き込まれませんでした: %1。キーチェーンのロックを解除するか、キーファイルを元に戻すか、パスワードを除外してください。</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>データベースがありません。</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>このアドレスのデバイスが複数あります。種類、ポート、チャンネルを指定してください</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>この名前のデバイスが複数あります。アドレスを指定してください</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>これはデータベースのため、変更しませんでした。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1に書き込めません: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1、ほか%2件</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>制御文字が含まれています</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>1024文字を超えています</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>改行が含まれています</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>表示できない文字が含まれています</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>0~65535の数字ではありません</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>1~4の数字ではありません</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>yes、no、true、false、1、0のいずれでもありません</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>MACアドレス (16進数12桁) ではありません</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>IP device、URL camera、channel deviceのいずれでもなく、数字でもありません</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>数字ではありません</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 インポートはそこで停止しました。ここに示した件数だけが保存されています。残りはファイルを再度インポートしてください。</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1は通常のファイルではありません。</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1はノードデータベースそのものです。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>%1行が不正です。カメラの一覧ではありません。</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>一覧のパスワード (%1行目) は、暗号化するキーがないため保存できません。キーチェーンのロックを解除するか、キーファイルを元に戻すか、設定フォルダーを書き込み可能にしてください。何もインポートされませんでした。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>最初の行を読み取れません: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>この種類のデバイスはここでは追加できません</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>録画フォルダーはここでは追加できません</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>デバイスを追加できませんでした</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>このアドレスにあるものはデバイスではありません</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>このアドレスのデバイスにはチャンネルがありません</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>デバイスを変更できませんでした</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>列「%1」が2つあります。</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>列「address」がありません。最初の行に列名が必要です。</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>列の数よりセルが多くあります</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>%1が不正です: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>名前もアドレスもありません</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>この種類のデバイスにはチャンネルがありません</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>ホスト名でもIPアドレスでもありません</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>ホスト以外も含まれています。ポート、SSL、ユーザーには専用の列があります</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>%1行目と同じデバイスについての行で、その内容を変更します</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>新しいデバイスに名前が付きません</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>このコンピューターには共有データベースのキーがないため、リストのパスワード(%1行目)を保存できません。先にパスフレーズを入力してください。何もインポートされませんでした。</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>%1のプロパティ</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>%n個のノードのプロパティ</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>録画フォルダー</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>%1の録画フォルダー</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>%n台のカメラの録画フォルダー</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>ユーザーとパスワード</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>%1のユーザーとパスワード</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>%n個のノードのユーザーとパスワード</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>ノードの追加</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>%1の追加</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>%n個のノードの追加</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>ノードの削除</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>%1の削除</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>%n個のノードの削除</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>%1のインポート</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>カメラから得た情報</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>%1から得た情報</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>%n台のカメラから得た情報</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>新しいアドレス</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>%1の新しいアドレス</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>%n台のデバイスの新しいアドレス</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>スキャンで%1を検出</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>スキャンで%n台のデバイスを検出</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>カメラの識別情報</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>%1の識別情報</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>%n台のカメラの識別情報</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>グローバルプロキシ</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>環境</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>新しいデータベース</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>復元したバックアップ</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>元に戻した変更</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>新しいバージョンによる変更</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>やり直し: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>パスワードの再暗号化</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>%1行目のレコードで始まる引用符付きのセルが閉じられていません。</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>%1行目で始まるレコードが1 MiBを超えています。</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>セルの閉じ引用符の後に文字があります</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>テキストファイルではありません (%1行目にバイナリデータがあります)。UTF-8テキストとして保存してください。</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>%1行目が1 MiBを超えています。</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>%1行目がUTF-8テキストではありません。UTF-8で保存して、もう一度試してください。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>ファイルを読み取れません: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>応答に時間がかかりすぎます</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>アドレスが正しくありません</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>ONVIFに対応していません</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>デバイスの情報を返しません</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>パスワードを要求していますが、保存されていません</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>平文のパスワードを要求しています</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>不明な方法でパスワードを要求しています</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>このチャンネルの画像を通知していません</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>エンドポイントが以前と異なります</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>認証領域 (realm) が以前と異なります</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>シリアル番号が以前と異なります</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>別のパスワードが拒否されています</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>時間内に応答がありません</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>応答が長すぎます</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>別の場所に転送しています</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>証明書が以前と異なります</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>ファイル「%1」は使用できません。名前がこのシステムの文字コードで表せません。名前を変更してください。</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>ユーザーとパスワードの入力</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>プロキシのアドレス</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>プロキシのポート</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>プロキシのユーザー</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>プロキシのパスワード</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>プロキシのパスワードを保存</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>パン/チルトヘッド</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>リモートプレビューを使用</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>パスワードを保存</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>プレビューモード</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>既定の接続データ</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>既定のフレームレート</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>既定のJPEG画質</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>既定の解像度</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>既定の音声設定</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>既定のファイルサーバーパス</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>既定のリモートプレビューサーバー</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>有効な環境</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>プロキシを使用</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>プロキシの例外</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>環境</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>グローバルプロキシ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>既知のデバイス</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(非表示)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>変更あり</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>すでにその状態です。</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>その後変更されています。</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>ノードは削除されています。</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>現在ほかで使用されています。</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>履歴の日数</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>履歴のメガバイト数</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>不明な種類の項目「%1」</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>レベル%1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>プログラムログ</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>新しいアドレスの承認</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>デバイス%1をアドレス%2から、検出された%3に移動しました。</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>デバイスのインポート</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>%1からデバイスをインポートしました: 追加%2、変更%3、拒否された行%4</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>ダイアログなしの変更</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>プログラムによる追加</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>プログラムによる削除</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>設定の変更</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>グローバルプロキシの変更</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>環境の変更</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>スキャンによる検出</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>新しいアドレスの承認</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>カメラの識別情報の記録</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>カメラから得た情報の自動入力</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>一覧のインポート</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>データベースの作成</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>バックアップの復元</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>新しいバージョンによる変更</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>録画フォルダーの変更</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>ユーザーとパスワードの変更</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>元に戻した変更</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>デバイスの追加</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>デバイスの削除</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>平文パスワードの許可</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>別のデバイスの承認</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>デバイス「%1」を追加しました。</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>デバイス「%1」を削除しました。</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>以前と別のデバイスを%1として承認しました。</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>%1のパスワードを平文で送信することを許可しました。</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>履歴の間引き</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>番号%1までの変更の詳細を履歴から取り除きました: %2行。</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1と他%n件</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>パスワードを改めて暗号化しました</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>変更セット %1が書き換えられています。</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>変更セットの行 %1が書き換えられています。</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>監査ログの項目 %1が書き換えられています。</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>変更セット %1がありません。</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>変更セットの行 %1がありません。</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>監査ログの項目 %1がありません。</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>変更セット %1は別のプログラムによって挿入されました。</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>変更セットの行 %1は別のプログラムによって挿入されました。</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>監査ログの項目 %1は別のプログラムによって挿入されました。</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>変更セット %1以降、ログが書き直されています。</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>変更セットの行 %1以降、ログが書き直されています。</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>監査ログの項目 %1以降、ログが書き直されています。</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>変更セット %1以降、ログは別の鍵で封印されています。</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>変更セットの行 %1以降、ログは別の鍵で封印されています。</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>監査ログの項目 %1以降、ログは別の鍵で封印されています。</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>変更セット %1より後が切り取られています。</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>変更セットの行 %1より後が切り取られています。</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>監査ログの項目 %1より後が切り取られています。</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>以前ここにあったログではありません。</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>MACアドレスは16進数12桁です。例: 00:00:5E:12:34:AB</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>Avahiデーモンが動作していません</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>Avahiデーモンが応答しません</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>すべてのインターフェイス</translation>
    </message>
</context>
<context>
    <name>NodeFacts</name>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>ソフトウェアバージョン</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MACアドレス</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>現在のIPアドレス</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>工場出荷時のIPアドレス</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>ライブストリーム (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>パン、チルト、ズーム</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>レイアウトオプション</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>録画</translation>
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
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>録画フォルダー</translation>
    </message>
    <message>
        <source>View</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>IPカメラ</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>URLカメラ</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>マルチチャンネルデバイス</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>内蔵レコーダー</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>リモートプレビューサーバー</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>種類%1のノード</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>%1のリモートプレビュー</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>このノードはすでに削除されています。変更は保存できません。このウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>画像のアドレスを通知していません</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>画像のアドレスに平文パスワードが含まれています</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>送信されたデータは画像ではありません</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>画像の送信を拒否しています</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>パスワードを要求していますが、保存されていません</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>画像の認証領域 (realm) がデバイスと異なります</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>不明な方法でパスワードを要求しています</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>平文のパスワードを要求しています</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>パス:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>パスは既定のファイルサーバーパスの下にあります</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>アドレス:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>ポート:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>安全な接続 (SSL)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>フォルダーの選択</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(空)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(異なる)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>「%1」はノードデータベースではなく、別の種類のファイルです。変更しませんでした。データベースファイルを選択するか、新しいファイル名を指定して空のデータベースを作成してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>「%1」は別のプログラムのデータベースで、ノードがありません。変更しませんでした。ノードデータベースを選択するか、新しいファイル名を指定して空のデータベースを作成してください。</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>ノードデータベース「%1」のテーブルは別のプログラムに変更されたため、信頼できません。変更しませんでした。バックアップコピーに置き換えてください。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>ノードデータベース「%1」は空か存在しませんが、ログまたはバックアップは残っています。何も変更していません。バックアップを復元するか、新しいファイル名を指定して空のデータベースを作成してください。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>ノードデータベース「%1」は破損しています。変更しませんでした。バックアップを復元してください。このプログラムが作成したバックアップはフォルダー「%1.backups」にあります。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>ノードデータベース「%1」は、このプログラムの新しいバージョンで書き込まれています。そのバージョンをこのコンピューターにインストールするか、同じフォルダーに作成されたバックアップコピーを開いてください。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>ファイルまたはフォルダーが書き込み禁止のため、ノードデータベース「%1」を変更できません。管理者に書き込み権限を依頼するか、データベースを自分のフォルダーにコピーして、そのコピーを開いてください。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>ノードデータベース「%1」は別のプログラムが使用しています。そのプログラムを閉じるか、バックアップやコピーが終わるのを待ってから、もう一度試してください。</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>ノードデータベース「%1」のための空き容量がありません。このディスクから不要なファイルを削除して、もう一度試してください。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>ノードデータベース「%1」を開けません。フォルダーが存在し、ディスクまたはネットワークドライブが接続され、ファイルの読み取り権限があることを確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>「%1」はフォルダー、デバイス、またはパイプのため、ノードデータベースにできません。変更しませんでした。別のファイルを選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>「%1」はノードデータベースそのもののため、変更しませんでした。コピー先に別のファイルを選択してください。</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>ノードデータベース「%1」の一部のパスワードは、暗号化に使用したキーがないため読み取れず、空で表示されます。キーチェーンのロックを解除するか、キーファイルを元に戻してから、プログラムを再起動してください。パスワードは、新しく設定するまでデータベースに残ります。</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>ノードデータベース「%1」の一部のパスワードは、このプログラム以外によって変更されたため、空で表示されます。新しく設定するまでデータベースに残ります。ファイルに書き込める人を調べるか、バックアップに戻してください。</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>パスワードを暗号化するキーがキーチェーンにもファイルにも見つからず、保存もできないため、ノードデータベース「%1」にパスワードを保存できません。キーチェーンのロックを解除するか、キーファイルを元に戻すか、設定フォルダーを書き込み可能にしてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>ノードデータベース「%1」を読み書きできません。ディスクまたはネットワークドライブが接続されていることを確認して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>「%1」の共有データベースの一部のパスワードは、暗号化に使われたキーがこのコンピューターにないため読み取れず、空で表示されます。ステータスバーの接続状態をクリックし、サイトのパスフレーズを入力してください。新しいパスワードを指定するまで、データベースに残ります。</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>このコンピューターにはサイトのキーがないため、「%1」の共有データベースにパスワードを保存できません。ステータスバーの接続状態をクリックし、サイトのパスフレーズを入力してから、もう一度試してください。</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>カメラ:</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>このビュー内:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>カメラを検索</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>このビューにないカメラ</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>このビューのカメラ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下へ</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>マルチキャストを使用できるネットワークがありません</translation>
    </message>
</context>
</TS>
