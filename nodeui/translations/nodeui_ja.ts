<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>カメラの追加</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>環境:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>プロキシ...</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>種類:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1の追加</translation>
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
        <translation>制御モード:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>&lt;b&gt;制御モード&lt;/b&gt;を選択すると、意図しない設定変更からカメラを保護できます。&lt;br&gt;
&lt;b&gt;フルコントロール&lt;/b&gt;: 設定は制限されません。&lt;br&gt;
&lt;b&gt;画像モード&lt;/b&gt;: 画像設定とPTZのみ設定できます。&lt;br&gt;
&lt;b&gt;閲覧モード&lt;/b&gt;: 設定はできません。</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>フルコントロール</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>画像モード</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>閲覧モード</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>帯域幅:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>&lt;b&gt;帯域幅&lt;/b&gt;を選択すると、カメラへの接続回線に合わせて画像の取得を調整できます。&lt;br&gt;
&lt;b&gt;低速リモート:&lt;/b&gt; モデム、ISDN、GPRS、EDGE&lt;br&gt;
&lt;b&gt;高速リモート:&lt;/b&gt; DSL、UMTS/3G&lt;br&gt;
&lt;b&gt;低速ローカル:&lt;/b&gt; WLAN/WiFi、イーサネット&lt;br&gt;
&lt;b&gt;高速ローカル:&lt;/b&gt; ファストイーサネット、ギガビットイーサネット</translation>
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
</context>
<context>
    <name>CustomNetworkProxyWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Use custom proxy</source>
        <translation>カスタムプロキシを使用する</translation>
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
        <source>User name:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>カメラの編集</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>環境:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>プロキシ...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>%1のプロパティ</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>ネットワーク環境</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>クリックすると新しい環境を追加します。</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>クリックすると選択した環境を削除します。</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>無題 %1</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Node types</source>
        <translation>ノードの種類</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>汎用ノードビューアー</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>ノードの種類:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>ノード名:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
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
        <translation>モデル:</translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation>ソフトウェアバージョン:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>MACアドレス:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>工場出荷時のIPアドレス:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>現在のIPアドレス:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>現在のIPアドレス</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;不明&gt;</translation>
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
        <translation>指示書ファイル:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>指示書ファイルを選択します</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>優先/アラームレイアウト:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>表示方式:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>遅延を最小にする</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>滑らかに表示する</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>音声パス:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>未定義</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>自身</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>指示書ファイル</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>デバイスのプロパティの変更</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>デバイス「%1」のプロパティを変更しました。</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>デバイス名の変更</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>デバイスの名前を%1から%2に変更しました。</translation>
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
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>ネットワークプロキシ</translation>
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
        <translation>プロキシサーバー</translation>
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
        <source>User name:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>次のホストとドメインではプロキシを使用しない:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>セミコロン (;) で区切ります。例: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>プロキシを使用しないホストとドメインを入力してください。&lt;br&gt;区切りにはセミコロン (;)、ワイルドカードにはアスタリスク (*) を使用します。例:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>ユーザーとパスワード</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>次のカメラのユーザー名とパスワードを入力してください。&lt;br&gt;%1認証に使用します:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>ユーザー名: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>パスワード: </translation>
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
        <translation>ユーザー名とパスワードを保存しています...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>ノードデータベース</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>環境の編集...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Bonjourスキャン</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>ARPスキャン</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>追加 ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>編集 ...</translation>
    </message>
    <message>
        <source>Filter ...</source>
        <translation>フィルター ...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>追加...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>選択項目を削除</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>すべて削除</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
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
        <source>Symbol</source>
        <translation>シンボル</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>ノードの種類</translation>
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
        <translation>種類:</translation>
    </message>
    <message>
        <source>Sensitivity:</source>
        <translation>感度:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>極短</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>指数</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>リニア</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Fast Patch:</source>
        <translation>ファストパッチ:</translation>
    </message>
    <message>
        <source>Fast Patch</source>
        <translation>ファストパッチ</translation>
    </message>
    <message>
        <source>Joystick control:</source>
        <translation>ジョイスティック操作:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>水平方向を反転する</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>垂直方向を反転する</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>メカニカルズーム:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>ズームコマンドを雲台に直接送信します。</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>メカニカルズーム</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>雲台のアドレス:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>有効範囲: 1~255</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>雲台の論理アドレス</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>雲台なし</translation>
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
        <translation>画像</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>ライブ (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>連続PTZコマンドでの使用に適しています。</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>上:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>下:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右:</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>ズームイン:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>ズームアウト:</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>停止:</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>無制限</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>録画へのアクセス</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>カメラ経由で録画データを取得する場合に選択します。カメラの内蔵ストレージに録画している場合や、ファイルサーバーに直接アクセスできない場合に使用できます。</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>カメラ経由</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>環境設定で指定した既定のファイルサーバーに直接アクセスします。</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>既定のファイルサーバーパス (工場出荷時のIPアドレスが付加されます)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>カメラ固有のファイルサーバーパスを指定する場合に選択します。</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>個別のファイルサーバーパス:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>個別のファイルサーバーパス</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>詳細...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;低帯域幅の接続では、再生とビデオ検索にKoTandemを使用できます。音声・映像データは常に上で選択した録画先からエクスポートされます。&lt;/p&gt;&lt;p&gt;KoTandemは別途インストールが必要なサーバー製品です。詳細は販売店のWebサイトをご覧ください。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>再生とビデオ検索にプレビューデータを使用する</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>録画フォルダー</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;ここには他のカメラに割り当てられた録画フォルダーは表示されません。このカメラに割り当てられたフォルダーと、未割り当てのフォルダーだけが表示されます。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>録画フォルダー</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>新しい録画ノードを作成します。</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>追加...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>録画ノードを編集します。</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>録画ノードを削除します。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>選択した項目をカメラに割り当てます。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>%1の録画へのアクセス</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>録画フォルダーなし</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>簡易表示...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>項目が選択されていません</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>項目を選択してください。</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>録画フォルダーのパスの選択</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>重大なエラー</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>ノードドライバー (RecordingFolderNode) がありません。</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>無効な操作</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>内蔵レコーダーは削除できません。</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>ノードを削除しようとしています。
この操作は元に戻せません。
続行しますか?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>ノードの削除</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>既定のファイルサーバーパスが未設定です</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>このオプションを設定する前に、既定のファイルサーバーパスを指定してください。</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>工場出荷時の拡張情報が不明です</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>工場出荷時の拡張情報が判明するまで、このオプションは使用できません。</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>録画フォルダーが割り当てられていません</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>カメラに録画フォルダーを割り当ててください。</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>録画へのアクセス</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;次のカメラの録画に%2がアクセスする方法を選択してください:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>カメラ経由</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>既定のファイルサーバーパス (工場出荷時のIPアドレスが付加されます)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>個別のファイルサーバーパス (工場出荷時のIPが付加されます):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>個別のファイルサーバー</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>パス:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
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
        <source>Use preview data for playback and Video Search</source>
        <translation>再生とビデオ検索にプレビューデータを使用する</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;次の録画に%2がアクセスする方法を選択してください:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>ファイルサーバーのディレクトリの選択</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>既定のファイルサーバーパスが未設定です</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>このオプションを設定する前に、既定のファイルサーバーパスを指定してください。</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>録画の場所を保存しています...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>KoTandemのカスタム設定</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>この映像ソースのプレビュー設定を変更するか、&lt;b&gt;オプション&amp;nbsp;&amp;gt;&amp;nbsp;接続の既定値&lt;/b&gt;で定義した既定値を使用します。</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>接続データ</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>カスタム接続データを使用する</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>カメラプレビュー</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>イベントストリーマー</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>リモートプレビュー</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>IPアドレス:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>ポート:</translation>
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
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>カスタムJPEG画質を使用する</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG画質</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>カスタムフレームレートを使用する</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>F/s</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>カスタム解像度を使用する</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>カスタム音声設定を使用する</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効にする</translation>
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
        <translation>録画へのアクセス:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>変更...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>カメラ経由</translation>
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
        <source>Channel:</source>
        <translation>チャンネル:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>このカメラではプロキシを使用しません。</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>プロキシを使用しない</translation>
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
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>現在のアドレスは、まだ次のプロキシ例外の対象です:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>プロキシ設定を確認してください。</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>プロキシ設定</translation>
    </message>
</context>
</TS>
