<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CameraDialog</name>
    <message>
        <source>&amp;Simulation</source>
        <translation>シミュレーション(&amp;S)</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>Cannot open the camera &apos;%1&apos;: %2.</source>
        <translation>カメラ「%1」を開けません: %2。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no camera system.</source>
        <translation>カメラシステムがありません。</translation>
    </message>
    <message>
        <source>There is no camera that can be opened.</source>
        <translation>開くことのできるカメラがありません。</translation>
    </message>
    <message>
        <source>There is no camera &apos;%1&apos;; there are: %2.</source>
        <translation>カメラ「%1」はありません。あるもの: %2。</translation>
    </message>
    <message>
        <source>There are several cameras: %1; &apos;--camera&apos; names one.</source>
        <translation>複数のカメラがあります: %1。&apos;--camera&apos; で 1 台を指定してください。</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>時間がかかりすぎます</translation>
    </message>
</context>
<context>
    <name>ConfigureMenu</name>
    <message>
        <source>&amp;Configure</source>
        <translation>設定(&amp;C)</translation>
    </message>
    <message>
        <source>Configuration &amp;Window</source>
        <translation>設定ウィンドウ(&amp;W)</translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>通知</translation>
    </message>
</context>
<context>
    <name>Explorer</name>
    <message>
        <source>Cannot write to standard output.</source>
        <translation>標準出力に書き込めません。</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;.</source>
        <translation>「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>There is no display; &apos;--screenshot DIR&apos; draws the window into a file.</source>
        <translation>ディスプレイがありません。「--screenshot DIR」でウィンドウをファイルに描画できます。</translation>
    </message>
</context>
<context>
    <name>ExplorerWindow</name>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>ウィジェット</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Open &amp;Camera...</source>
        <translation>カメラを開く(&amp;C)...</translation>
    </message>
    <message>
        <source>Choose another camera</source>
        <translation>別のカメラを選択します</translation>
    </message>
    <message>
        <source>&amp;Open Description...</source>
        <translation>記述ファイルを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Show a GenICam description</source>
        <translation>GenICam の記述を表示します</translation>
    </message>
    <message>
        <source>&amp;Save View State...</source>
        <translation>表示状態を保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Load View State...</source>
        <translation>表示状態を読み込む(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Simulated</source>
        <translation>シミュレーション(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Real</source>
        <translation>実機(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>両方(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Refresh Values</source>
        <translation>値を更新(&amp;R)</translation>
    </message>
    <message>
        <source>Read the values of the tree again</source>
        <translation>ツリーの値を読み直します</translation>
    </message>
    <message>
        <source>&amp;Poll</source>
        <translation>ポーリング(&amp;P)</translation>
    </message>
    <message>
        <source>Read values that change by themselves regularly</source>
        <translation>自ら変化する値を定期的に読み取ります</translation>
    </message>
    <message>
        <source>Polling &amp;Interval...</source>
        <translation>ポーリング間隔(&amp;I)...</translation>
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
        <source>%1 is shown.</source>
        <translation>%1 を表示しています。</translation>
    </message>
    <message>
        <source>%1 - Camera Explorer</source>
        <translation>%1 - カメラエクスプローラー</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>%1 is back.</source>
        <translation>%1 が復帰しました。</translation>
    </message>
    <message>
        <source>%1 is lost.</source>
        <translation>%1 との接続が失われました。</translation>
    </message>
    <message>
        <source>Open Description</source>
        <translation>記述ファイルを開く</translation>
    </message>
    <message>
        <source>GenICam descriptions (*.xml);;All files (*)</source>
        <translation>GenICam の記述 (*.xml);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Save View State</source>
        <translation>表示状態の保存</translation>
    </message>
    <message>
        <source>Load View State</source>
        <translation>表示状態の読み込み</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation>「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2.</source>
        <translation>「%1」を読み取れません: %2。</translation>
    </message>
    <message>
        <source>Polling Interval</source>
        <translation>ポーリング間隔</translation>
    </message>
    <message>
        <source>Milliseconds:</source>
        <translation>ミリ秒:</translation>
    </message>
    <message>
        <source>Polling every %1 ms</source>
        <translation>%1 ms ごとにポーリング</translation>
    </message>
    <message>
        <source>Not polling</source>
        <translation>ポーリングなし</translation>
    </message>
    <message>
        <source>Refreshing failed: %1</source>
        <translation>更新に失敗しました: %1</translation>
    </message>
    <message>
        <source>About Camera Explorer</source>
        <translation>カメラエクスプローラーについて</translation>
    </message>
    <message>
        <source>&lt;b&gt;Camera Explorer %1&lt;/b&gt;&lt;p&gt;Shows the features of GenICam cameras.&lt;/p&gt;</source>
        <translation>&lt;b&gt;カメラエクスプローラー %1&lt;/b&gt;&lt;p&gt;GenICam カメラの機能を表示します。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>ヒストグラム</translation>
    </message>
    <message>
        <source>How often each brightness occurs, from black to the largest value</source>
        <translation>黒から最大値までの各明るさの出現頻度</translation>
    </message>
</context>
<context>
    <name>LogDock</name>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Writes and errors</source>
        <translation>書き込みとエラー</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>The kinds of lines that are shown</source>
        <translation>表示する行の種類</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the lines that are selected, or all that are shown</source>
        <translation>選択した行、または表示中の全行をコピーします</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Write the lines that are shown into a file</source>
        <translation>表示中の行をファイルに書き込みます</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>すべての行を削除します</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>ログの保存</translation>
    </message>
    <message>
        <source>Texts (*.txt *.log);;All files (*)</source>
        <translation>テキスト (*.txt *.log);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>The log has been saved in &apos;%1&apos;.</source>
        <translation>ログを「%1」に保存しました。</translation>
    </message>
    <message>
        <source>Show only lines that have this text in them; Escape clears it</source>
        <translation>このテキストを含む行だけを表示します。Escape で消去します</translation>
    </message>
</context>
<context>
    <name>OpeningDialog</name>
    <message>
        <source>Open Camera</source>
        <translation>カメラを開く</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続中...</translation>
    </message>
    <message>
        <source>Fetching the description...</source>
        <translation>記述を取得中...</translation>
    </message>
    <message>
        <source>Making the features...</source>
        <translation>機能を作成中...</translation>
    </message>
    <message>
        <source>The camera is not connected.</source>
        <translation>カメラが接続されていません。</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Empty value after &apos;--%1&apos;.</source>
        <translation>「--%1」の後の値が空です。</translation>
    </message>
    <message>
        <source>&apos;--set&apos; needs NAME=VALUE, not &apos;%1&apos;.</source>
        <translation>「--set」には「%1」ではなく 名前=値 が必要です。</translation>
    </message>
    <message>
        <source>&apos;--xml&apos; and &apos;--snap&apos; exclude each other.</source>
        <translation>「--xml」と「--snap」は同時に使えません。</translation>
    </message>
    <message>
        <source>&apos;--list&apos; goes without another camera or command.</source>
        <translation>「--list」は他のカメラやコマンドと併用できません。</translation>
    </message>
    <message>
        <source>&apos;--screenshot&apos; goes without other commands.</source>
        <translation>「--screenshot」は他のコマンドと併用できません。</translation>
    </message>
    <message>
        <source>&apos;--real&apos; and &apos;--simulated&apos; exclude each other.</source>
        <translation>「--real」と「--simulated」は同時に使えません。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>予期しない引数「%1」です。</translation>
    </message>
    <message>
        <source>&apos;--xml&apos; and &apos;--camera&apos; exclude each other.</source>
        <translation>「--xml」と「--camera」は同時に使えません。</translation>
    </message>
    <message>
        <source>&apos;--adapter&apos; and &apos;--address&apos; need &apos;--real&apos;.</source>
        <translation>「--adapter」と「--address」には「--real」が必要です。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no IPv4 address.</source>
        <translation>「%1」は IPv4 アドレスではありません。</translation>
    </message>
    <message>
        <source>Real cameras need the module libOrvCameraApiAravis.so, which is not installed.</source>
        <translation>実機のカメラには libOrvCameraApiAravis.so モジュールが必要ですが、インストールされていません。</translation>
    </message>
    <message>
        <source>There is no language &apos;%1&apos;; there are: %2.</source>
        <translation>言語「%1」はありません。あるもの: %2。</translation>
    </message>
    <message>
        <source>Shows the features of a GenICam camera.</source>
        <translation>GenICam カメラの機能を表示します。</translation>
    </message>
    <message>
        <source>Print this text.</source>
        <translation>このテキストを出力します。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>バージョンを出力します。</translation>
    </message>
    <message>
        <source>Show the GenICam description FILE over an empty memory.</source>
        <translation>GenICam の記述 ファイル を空のメモリー上で表示します。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Open the camera with the identifier ID instead of asking for one.</source>
        <translation>尋ねずに、識別子 識別子 のカメラを開きます。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Show the cameras on the network and on USB instead of simulated ones.</source>
        <translation>シミュレーションではなく、ネットワークと USB のカメラを表示します。</translation>
    </message>
    <message>
        <source>Show simulated cameras.</source>
        <translation>シミュレーションのカメラを表示します。</translation>
    </message>
    <message>
        <source>Print the cameras that are found, without a window.</source>
        <translation>ウィンドウを出さずに、見つかったカメラを出力します。</translation>
    </message>
    <message>
        <source>Print the value of the feature NAME, without a window.</source>
        <translation>ウィンドウを出さずに、機能 名前 の値を出力します。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Write VALUE to the feature NAME; execute it if it is a command.</source>
        <translation>機能 名前 に 値 を書き込みます。コマンドなら実行します。</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>名前=値</translation>
    </message>
    <message>
        <source>Write the settings of the camera into FILE, &apos;-&apos; for the standard output.</source>
        <translation>カメラの設定を ファイル に書き込みます。「-」は標準出力です。</translation>
    </message>
    <message>
        <source>Set the camera as FILE says, &apos;-&apos; for the standard input.</source>
        <translation>ファイル のとおりにカメラを設定します。「-」は標準入力です。</translation>
    </message>
    <message>
        <source>Write a picture of the camera into the PNG file FILE.</source>
        <translation>カメラの画像を PNG ファイル ファイル に書き込みます。</translation>
    </message>
    <message>
        <source>Look for cameras on the network adapter NAME only.</source>
        <translation>ネットワークアダプター 名前 だけでカメラを探します。</translation>
    </message>
    <message>
        <source>Ask the camera at the address IP only, without a broadcast.</source>
        <translation>ブロードキャストせず、アドレス IP のカメラだけに問い合わせます。</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Draw the windows into PNG files in the directory DIR and end; needs no display.</source>
        <translation>ウィンドウを フォルダー 内の PNG ファイルに描画して終了します。ディスプレイは不要です。</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Show the windows in the language LANGUAGE (%1) instead of the system&apos;s.</source>
        <translation>システムの言語ではなく、言語 (%1) でウィンドウを表示します。</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>言語</translation>
    </message>
</context>
<context>
    <name>PictureDock</name>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>画像(&amp;P)</translation>
    </message>
    <message>
        <source>Show the pictures of the camera</source>
        <translation>カメラの画像を表示します</translation>
    </message>
    <message>
        <source>&amp;One Frame</source>
        <translation>1 フレーム(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>全体表示(&amp;F)</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>画像全体を表示します</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>Show a pixel of the picture as one of the screen</source>
        <translation>画像の 1 ピクセルを画面の 1 ピクセルで表示します</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Show the picture larger</source>
        <translation>画像を大きく表示します</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>縮小(&amp;U)</translation>
    </message>
    <message>
        <source>Show the picture smaller</source>
        <translation>画像を小さく表示します</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>ヒストグラム(&amp;H)</translation>
    </message>
    <message>
        <source>Show how often each brightness occurs</source>
        <translation>各明るさの出現頻度を表示します</translation>
    </message>
    <message>
        <source>Save as &amp;PNG...</source>
        <translation>PNG で保存(&amp;P)...</translation>
    </message>
    <message>
        <source>Save the picture as it is now</source>
        <translation>現在の画像を保存します</translation>
    </message>
    <message>
        <source>There is no camera that could send pictures</source>
        <translation>画像を送れるカメラがありません</translation>
    </message>
    <message>
        <source>The camera is disconnected</source>
        <translation>カメラは切断されています</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>Stop the camera</source>
        <translation>カメラを停止します</translation>
    </message>
    <message>
        <source>Let the camera send pictures</source>
        <translation>カメラに画像を送らせます</translation>
    </message>
    <message>
        <source>Let the camera send one picture</source>
        <translation>カメラに画像を 1 枚送らせます</translation>
    </message>
    <message>
        <source>F9 starts the camera</source>
        <translation>F9 でカメラを開始します</translation>
    </message>
    <message>
        <source>%L1 frames/s</source>
        <translation>%L1 フレーム/秒</translation>
    </message>
    <message>
        <source>%L1 received</source>
        <translation>受信 %L1</translation>
    </message>
    <message>
        <source>%L1 skipped</source>
        <translation>スキップ %L1</translation>
    </message>
    <message>
        <source>%L1 lost</source>
        <translation>損失 %L1</translation>
    </message>
    <message>
        <source>%1 x %2, %3</source>
        <translation>%1 x %2、%3</translation>
    </message>
    <message>
        <source>, shown at %1 %</source>
        <translation>、表示倍率 %1 %</translation>
    </message>
    <message>
        <source>(%1, %2) %3</source>
        <translation>(%1, %2) %3</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>画像の保存</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;All files (*)</source>
        <translation>PNG 画像 (*.png);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Saved &apos;%1&apos;.</source>
        <translation>「%1」を保存しました。</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation>「%1」に書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
</context>
<context>
    <name>PixelFormat</name>
    <message>
        <source>The pixel format %1 is unknown.</source>
        <translation>ピクセルフォーマット %1 は不明です。</translation>
    </message>
    <message>
        <source>The picture has no pixels (%1).</source>
        <translation>画像にピクセルがありません (%1)。</translation>
    </message>
    <message>
        <source>The picture is too large (%1).</source>
        <translation>画像が大きすぎます (%1)。</translation>
    </message>
    <message>
        <source>%1 of %2 pixels are missing.</source>
        <translation>%1 / %2 ピクセルが欠けています。</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>画像のためのメモリーが足りません。</translation>
    </message>
</context>
<context>
    <name>PlugMenu</name>
    <message>
        <source>Plug &amp;In and Out</source>
        <translation>接続と取り外し(&amp;I)</translation>
    </message>
</context>
<context>
    <name>Script</name>
    <message>
        <source>Cannot write to standard output.</source>
        <translation>標準出力に書き込めません。</translation>
    </message>
    <message>
        <source>None has come within %1 s.</source>
        <translation>%1 秒以内に届きませんでした。</translation>
    </message>
    <message>
        <source>There is no camera.</source>
        <translation>カメラがありません。</translation>
    </message>
    <message>
        <source>There is no feature &apos;%1&apos; with a value.</source>
        <translation>値を持つ機能「%1」はありません。</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>「%1」を読み取れません: %2</translation>
    </message>
    <message>
        <source>Cannot set &apos;%1&apos;: %2</source>
        <translation>「%1」を設定できません: %2</translation>
    </message>
    <message>
        <source>Cannot execute &apos;%1&apos;: %2</source>
        <translation>「%1」を実行できません: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not end.</source>
        <translation>「%1」が終わりません。</translation>
    </message>
    <message>
        <source>%1: wanted &apos;%2&apos;, has &apos;%3&apos;: %4</source>
        <translation>%1: 目標「%2」、実際「%3」: %4</translation>
    </message>
    <message>
        <source>There is no picture: %1</source>
        <translation>画像がありません: %1</translation>
    </message>
    <message>
        <source>The picture cannot be shown: %1</source>
        <translation>画像を表示できません: %1</translation>
    </message>
    <message>
        <source>The picture cannot be written as PNG.</source>
        <translation>画像を PNG として書き込めません。</translation>
    </message>
    <message>
        <source>It was lost on its way.</source>
        <translation>途中で失われました。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has the value &apos;%2&apos; now.</source>
        <translation>&apos;%1&apos; の値は現在 &apos;%2&apos; です。</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>It failed without a reason.</source>
        <translation>理由なく失敗しました。</translation>
    </message>
    <message>
        <source>It can only be written.</source>
        <translation>書き込みしかできません。</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation>カメラにありません。</translation>
    </message>
    <message>
        <source>It can only be read now.</source>
        <translation>今は読み取りしかできません。</translation>
    </message>
    <message>
        <source>It is not available now.</source>
        <translation>今は利用できません。</translation>
    </message>
    <message>
        <source>The camera has taken another value.</source>
        <translation>カメラは別の値を採用しました。</translation>
    </message>
    <message>
        <source>It is not in the file.</source>
        <translation>ファイルにありません。</translation>
    </message>
    <message>
        <source>The camera has no feature of that name with a value.</source>
        <translation>カメラにその名前で値を持つ機能はありません。</translation>
    </message>
    <message>
        <source>It was not tried.</source>
        <translation>試みませんでした。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be set to &apos;%2&apos;: %3</source>
        <translation>「%1」を「%2」に設定できません: %3</translation>
    </message>
    <message>
        <source>Its text has a line break, which no line of a file can hold.</source>
        <translation>テキストに改行があり、ファイルの 1 行に収まりません。</translation>
    </message>
    <message>
        <source>It could not be put back to &apos;%1&apos;: %2</source>
        <translation>「%1」に戻せませんでした: %2</translation>
    </message>
    <message>
        <source>The camera marks no feature as a setting: all that can be read and written are saved, except those of its connection.</source>
        <translation>カメラは設定として印の付いた機能を持ちません。接続に関するものを除き、読み書きできるすべてを保存します。</translation>
    </message>
    <message>
        <source>What it selects is saved once only: %1</source>
        <translation>選択されるものは一度だけ保存されます: %1</translation>
    </message>
    <message>
        <source>It has too many entries: not all of them are saved.</source>
        <translation>項目が多すぎるため、すべては保存されません。</translation>
    </message>
    <message>
        <source>What &apos;%1&apos; selects is not saved: %2</source>
        <translation>「%1」が選択するものは保存されません: %2</translation>
    </message>
    <message>
        <source>There is nothing that could be saved. %1</source>
        <translation>保存できるものがありません。%1</translation>
    </message>
    <message>
        <source>The camera does not answer any more: %1</source>
        <translation>カメラが応答しなくなりました: %1</translation>
    </message>
    <message>
        <source>It belongs to the connection, not to the settings.</source>
        <translation>これは接続に属し、設定ではありません。</translation>
    </message>
    <message>
        <source>It was set, and could not be read again: %1</source>
        <translation>設定されましたが、読み直せませんでした: %1</translation>
    </message>
    <message>
        <source>Another setting has changed it again.</source>
        <translation>別の設定によって再び変更されました。</translation>
    </message>
    <message>
        <source>Not all that it selects is saved: %1</source>
        <translation>これが選択するもののすべては保存されていません: %1</translation>
    </message>
    <message>
        <source>Its text would be taken for selectors.</source>
        <translation>そのテキストはセレクターと見なされてしまいます。</translation>
    </message>
    <message>
        <source>It is too large for a file.</source>
        <translation>ファイルには大きすぎます。</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>There are no settings in it.</source>
        <translation>設定が含まれていません。</translation>
    </message>
    <message>
        <source>The head of a settings file is missing.</source>
        <translation>設定ファイルの先頭部がありません。</translation>
    </message>
    <message>
        <source>The line is too long.</source>
        <translation>行が長すぎます。</translation>
    </message>
    <message>
        <source>The line has a NUL byte.</source>
        <translation>行に NUL バイトがあります。</translation>
    </message>
    <message>
        <source>The line is no setting: &apos;%1&apos;.</source>
        <translation>行が設定ではありません:「%1」。</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>「%1」を読み取れません: %2</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>ファイルが大きすぎます。</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2</source>
        <translation>「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>There is more of that kind.</source>
        <translation>同種のものがほかにもあります。</translation>
    </message>
    <message>
        <source>It has too many lines.</source>
        <translation>行が多すぎます。</translation>
    </message>
</context>
<context>
    <name>SettingsJob</name>
    <message>
        <source>Ending...</source>
        <translation>終了中...</translation>
    </message>
</context>
<context>
    <name>SettingsMenu</name>
    <message>
        <source>S&amp;ettings</source>
        <translation>設定ファイル(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Save Settings...</source>
        <translation>設定を保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>設定の保存</translation>
    </message>
    <message>
        <source>&amp;Load Settings...</source>
        <translation>設定を読み込む(&amp;L)...</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>設定の読み込み</translation>
    </message>
    <message>
        <source>&amp;Compare With File...</source>
        <translation>ファイルと比較(&amp;C)...</translation>
    </message>
    <message>
        <source>Compare With File</source>
        <translation>ファイルと比較</translation>
    </message>
    <message>
        <source>Write the settings of the camera into a file</source>
        <translation>カメラの設定をファイルに書き込みます</translation>
    </message>
    <message>
        <source>Set the camera as a file says</source>
        <translation>ファイルのとおりにカメラを設定します</translation>
    </message>
    <message>
        <source>Show what differs between the camera and a file</source>
        <translation>カメラとファイルの違いを表示します</translation>
    </message>
    <message>
        <source>Compare &amp;Two Files...</source>
        <translation>2 つのファイルを比較(&amp;T)...</translation>
    </message>
    <message>
        <source>First File</source>
        <translation>1 つ目のファイル</translation>
    </message>
    <message>
        <source>Show what differs between two files</source>
        <translation>2 つのファイルの違いを表示します</translation>
    </message>
    <message>
        <source>Settings (*.gps *.txt);;All files (*)</source>
        <translation>設定 (*.gps *.txt);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Second File</source>
        <translation>2 つ目のファイル</translation>
    </message>
    <message>
        <source>Lines saved in &apos;%1&apos;: %2</source>
        <translation>「%1」に保存した行数: %2</translation>
    </message>
    <message>
        <source>What is missing, and why</source>
        <translation>不足しているものとその理由</translation>
    </message>
    <message>
        <source>The settings are those of another camera: %1.
This one is: %2.</source>
        <translation>設定は別のカメラのものです: %1。
このカメラ: %2。</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>読み込む(&amp;L)</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>It has been set.</source>
        <translation>設定しました。</translation>
    </message>
    <message>
        <source>%1 of %2 settings have been set, %3 could not be set; the others were so already.</source>
        <translation>%2 件中 %1 件を設定し、%3 件は設定できませんでした。残りは既にその値でした。</translation>
    </message>
    <message>
        <source>It was interrupted.</source>
        <translation>中断されました。</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Comparing was interrupted.</source>
        <translation>比較が中断されました。</translation>
    </message>
    <message>
        <source>Only in &apos;%1&apos;.</source>
        <translation>「%1」にのみあります。</translation>
    </message>
    <message>
        <source>Differences between &apos;%1&apos; and &apos;%2&apos;: %3</source>
        <translation>「%1」と「%2」の違い: %3</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The camera sends pictures, which locks some of its settings.</source>
        <translation>カメラが画像を送信しているため、一部の設定がロックされています。</translation>
    </message>
    <message>
        <source>&amp;Stop the Pictures</source>
        <translation>画像を停止(&amp;S)</translation>
    </message>
    <message>
        <source>%1: the camera does not stop sending pictures.</source>
        <translation>%1: カメラが画像の送信を停止しません。</translation>
    </message>
    <message>
        <source>%1 has failed: %2</source>
        <translation>%1 に失敗しました: %2</translation>
    </message>
    <message>
        <source>Saving was interrupted.</source>
        <translation>保存は中断されました。</translation>
    </message>
    <message>
        <source>%1 Nothing was written to &apos;%2&apos;.</source>
        <translation>%1 「%2」には何も書き込まれませんでした。</translation>
    </message>
    <message>
        <source>Loading was interrupted: nothing has been set.</source>
        <translation>読み込みは中断されました: 何も設定されていません。</translation>
    </message>
    <message>
        <source>%1 of %2 settings have been put back, %3 could not be put back; the others were so already.</source>
        <translation>%2 件の設定のうち %1 件を元に戻しました。%3 件は戻せませんでした。その他はすでにその値でした。</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>ほか %1 件。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>元に戻す(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the lines that are selected, or all of them</source>
        <translation>選択した行、またはすべての行をコピーします</translation>
    </message>
    <message>
        <source>Write what the camera had before</source>
        <translation>カメラの元の値を書き込みます</translation>
    </message>
</context>
<context>
    <name>SimulationMenu</name>
    <message>
        <source>&amp;Simulation</source>
        <translation>シミュレーション(&amp;S)</translation>
    </message>
    <message>
        <source>Refuse &amp;All Writes</source>
        <translation>すべての書き込みを拒否(&amp;A)</translation>
    </message>
    <message>
        <source>Re&amp;cover All Features</source>
        <translation>すべての機能を復旧(&amp;C)</translation>
    </message>
    <message>
        <source>Let Values &amp;Drift</source>
        <translation>値を変動させる(&amp;D)</translation>
    </message>
    <message>
        <source>a Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>&apos;%1&apos;</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>Let &amp;Reading %1 Fail</source>
        <translation>%1 の読み取りを失敗させる(&amp;R)</translation>
    </message>
    <message>
        <source>Let &amp;Writing %1 Fail</source>
        <translation>%1 の書き込みを失敗させる(&amp;W)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no register of its own that could fail.</source>
        <translation>「%1」には失敗させられる固有のレジスターがありません。</translation>
    </message>
    <message>
        <source>The camera refuses all writes until its features recover.</source>
        <translation>機能が復旧するまで、カメラはすべての書き込みを拒否します。</translation>
    </message>
</context>
<context>
    <name>TreeToolsMenu</name>
    <message>
        <source>Feature &amp;Tree</source>
        <translation>機能ツリー(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>前を検索(&amp;P)</translation>
    </message>
    <message>
        <source>Fa&amp;vorites Only</source>
        <translation>お気に入りのみ(&amp;V)</translation>
    </message>
    <message>
        <source>Show only favorites, which the menus of the features&apos; rows choose</source>
        <translation>各行のメニューで選んだお気に入りだけを表示します</translation>
    </message>
    <message>
        <source>&amp;Changed Only</source>
        <translation>変更分のみ(&amp;C)</translation>
    </message>
    <message>
        <source>Show only features whose value differs from the first that was seen</source>
        <translation>最初に見た値から変わった機能だけを表示します</translation>
    </message>
    <message>
        <source>&amp;All Categories</source>
        <translation>すべてのカテゴリー(&amp;A)</translation>
    </message>
    <message>
        <source>End showing one category only</source>
        <translation>1 つのカテゴリーだけの表示を終えます</translation>
    </message>
    <message>
        <source>&amp;Mark Changes</source>
        <translation>変更に印を付ける(&amp;M)</translation>
    </message>
    <message>
        <source>Show for a moment which values have changed</source>
        <translation>変わった値をしばらく示します</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Signals</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>Spin Boxes</source>
        <translation>スピンボックス</translation>
    </message>
    <message>
        <source>64 bits</source>
        <translation>64 ビット</translation>
    </message>
    <message>
        <source>64 bits, hexadecimal</source>
        <translation>64 ビット、16 進</translation>
    </message>
    <message>
        <source>Steps of 8, Return</source>
        <translation>8 刻み、Return で確定</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Steps of 0.25, Return</source>
        <translation>0.25 刻み、Return で確定</translation>
    </message>
    <message>
        <source>With decimals</source>
        <translation>小数あり</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>線形</translation>
    </message>
    <message>
        <source>Log10</source>
        <translation>Log10</translation>
    </message>
    <message>
        <source>Sqrt</source>
        <translation>平方根</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Double</translation>
    </message>
    <message>
        <source>Log10, horizontal</source>
        <translation>Log10、水平</translation>
    </message>
    <message>
        <source>Steps of 0.3</source>
        <translation>0.3 刻み</translation>
    </message>
    <message>
        <source>Without labels</source>
        <translation>ラベルなし</translation>
    </message>
    <message>
        <source>Spin Boxes With Sliders</source>
        <translation>スライダー付きスピンボックス</translation>
    </message>
    <message>
        <source>Pop-&amp;up:</source>
        <translation>ポップアップ(&amp;U):</translation>
    </message>
    <message>
        <source>Pop-up, &amp;horizontal:</source>
        <translation>ポップアップ、水平(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Read-only:</source>
        <translation>読み取り専用(&amp;R):</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>露光</translation>
    </message>
    <message>
        <source>&amp;Exposure:</source>
        <translation>露光(&amp;E):</translation>
    </message>
    <message>
        <source> us</source>
        <translation> µs</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>ゲイン</translation>
    </message>
    <message>
        <source>&amp;Gain in decibels, steps of a quarter</source>
        <translation>ゲイン (デシベル)、1/4 刻み(&amp;G)</translation>
    </message>
</context>
<context>
    <name>WriteWatch</name>
    <message>
        <source>%1, before: %2</source>
        <translation>%1、変更前: %2</translation>
    </message>
    <message>
        <source>executed</source>
        <translation>実行しました</translation>
    </message>
    <message>
        <source>written; reading it back failed: %1</source>
        <translation>書き込みました。読み戻しに失敗しました: %1</translation>
    </message>
</context>
</TS>
