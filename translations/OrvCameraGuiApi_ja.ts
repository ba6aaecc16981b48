<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AccessReason</name>
    <message>
        <source>not implemented by the camera</source>
        <translation>カメラに実装されていません</translation>
    </message>
    <message>
        <source>not implemented, says %1</source>
        <translation>%1 により実装されていません</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>現在は使用できません</translation>
    </message>
    <message>
        <source>not available now because of %1</source>
        <translation>%1 のため現在は使用できません</translation>
    </message>
    <message>
        <source>locked by %1</source>
        <translation>%1 によりロックされています</translation>
    </message>
    <message>
        <source>the acquisition is running (%1)</source>
        <translation>画像取得中です (%1)</translation>
    </message>
    <message>
        <source>the camera lets it be read only</source>
        <translation>カメラでは読み取り専用です</translation>
    </message>
    <message>
        <source>&lt;i&gt;Not writable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;書き込み不可:&lt;/i&gt; %1</translation>
    </message>
</context>
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
</context>
<context>
    <name>EntryGuard</name>
    <message>
        <source>Enter a number from %1 to %2.</source>
        <translation>%1 から %2 までの数値を入力してください。</translation>
    </message>
</context>
<context>
    <name>FeatureMenu</name>
    <message>
        <source>Copy &amp;GenICam Name</source>
        <translation>GenICam 名をコピー(&amp;G)</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>値をコピー(&amp;V)</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>行をコピー(&amp;R)</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>再読み込み(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Execute</source>
        <translation>実行(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Favorite</source>
        <translation>お気に入り(&amp;F)</translation>
    </message>
    <message>
        <source>Go to &amp;Selector</source>
        <translation>セレクターへ移動(&amp;S)</translation>
    </message>
    <message>
        <source>Show &amp;Only This Category</source>
        <translation>このカテゴリーのみ表示(&amp;O)</translation>
    </message>
    <message>
        <source>Show A&amp;ll Categories</source>
        <translation>すべてのカテゴリーを表示(&amp;L)</translation>
    </message>
    <message>
        <source>Go to Selecte&amp;d Feature</source>
        <translation>選択対象の機能へ移動(&amp;D)</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 他 %1 件</translation>
    </message>
    <message>
        <source>Favor&amp;ites Only</source>
        <translation>お気に入りのみ(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Changed Only</source>
        <translation>変更分のみ(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FilterOptions</name>
    <message>
        <source>Case Sensitive</source>
        <translation>大文字と小文字を区別</translation>
    </message>
    <message>
        <source>Whole Words Only</source>
        <translation>単語単位で検索</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Find Features</source>
        <translation>機能を検索</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Previous match</source>
        <translation>前の一致</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>前の一致 (Shift+F3)</translation>
    </message>
    <message>
        <source>Next match</source>
        <translation>次の一致</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>次の一致 (F3)</translation>
    </message>
    <message>
        <source>Close search</source>
        <translation>検索を閉じる</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>閉じる (Esc)</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 件</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>見つかりません</translation>
    </message>
</context>
<context>
    <name>GenErrorsDlg</name>
    <message>
        <source>Gen&lt;i&gt;Cam errors</source>
        <translation>Gen&lt;i&gt;Cam エラー</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>エラーなし</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
    <message>
        <source>False</source>
        <translation>偽</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation>&lt;値は利用できません&gt;</translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation>&lt;値は読み出せません&gt;</translation>
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
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation>&lt;i&gt;範囲&lt;/i&gt;: 最小: %1、最大: %2</translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;名前:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;説明:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;設定として保存可能:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Cachable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;キャッシュ:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;セレクター:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;型:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>真偽値</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮動小数点数</translation>
    </message>
    <message>
        <source>String</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>列挙</translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;刻み幅&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;有効な値&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation>&lt;i&gt;列挙の項目&lt;/i&gt;:</translation>
    </message>
    <message>
        <source>NoCache</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>WriteThrough</source>
        <translation>ライトスルー</translation>
    </message>
    <message>
        <source>WriteAround</source>
        <translation>ライトアラウンド</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>未定義</translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>Collapse All</source>
        <translation>すべて折りたたむ</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>すべて展開</translation>
    </message>
    <message>
        <source>Filter by feature name.
Using of wildcard is possible.</source>
        <translation>機能名で絞り込みます。
ワイルドカードを使用できます。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation>表示レベル:</translation>
    </message>
    <message>
        <source>Level of feature visibility</source>
        <translation>表示する機能のレベル</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>初級</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>上級</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>最上級</translation>
    </message>
    <message>
        <source>Show Error Dialog</source>
        <translation>エラーを表示</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>表示レベル</translation>
    </message>
    <message>
        <source>No errors</source>
        <translation>エラーなし</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Description of the feature</source>
        <translation>機能の説明</translation>
    </message>
</context>
<context>
    <name>InfoPane</name>
    <message>
        <source>ReadWrite</source>
        <translation>読み書き可</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation>アクセス不可</translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation>IP サブネットの不一致</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation>USB3 Vision</translation>
    </message>
    <message>
        <source>GigE Vision</source>
        <translation>GigE Vision</translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation>CameraLink</translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation>CoaXPress</translation>
    </message>
    <message>
        <source>HD-SDI</source>
        <translation>HD-SDI</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigAboutDialog</name>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Device Information</source>
        <translation>デバイス情報</translation>
    </message>
    <message>
        <source>Device Firmware Version:</source>
        <translation>デバイスファームウェアバージョン:</translation>
    </message>
    <message>
        <source>Device Model Name:</source>
        <translation>デバイスモデル名:</translation>
    </message>
    <message>
        <source>Device Manufacturer Info:</source>
        <translation>製造元情報:</translation>
    </message>
    <message>
        <source>Device Serial Number:</source>
        <translation>デバイスシリアル番号:</translation>
    </message>
    <message>
        <source>Device User Defined Name:</source>
        <translation>ユーザー定義デバイス名:</translation>
    </message>
    <message>
        <source>Device Family Name:</source>
        <translation>デバイスファミリー名:</translation>
    </message>
    <message>
        <source>Device Vendor Name:</source>
        <translation>デバイスベンダー名:</translation>
    </message>
    <message>
        <source>Device Version:</source>
        <translation>デバイスバージョン:</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Firmware Image:</source>
        <translation>ファームウェアイメージ:</translation>
    </message>
    <message>
        <source>CustomerID:</source>
        <translation>顧客 ID:</translation>
    </message>
    <message>
        <source>Xml Version:</source>
        <translation>XML バージョン:</translation>
    </message>
    <message>
        <source>RgsID:</source>
        <translation>RGS ID:</translation>
    </message>
    <message>
        <source>FpgaID:</source>
        <translation>FPGA ID:</translation>
    </message>
    <message>
        <source>EpcsID:</source>
        <translation>EPCS ID:</translation>
    </message>
    <message>
        <source>Sensor Type:</source>
        <translation>センサータイプ:</translation>
    </message>
    <message>
        <source>FamilyID:</source>
        <translation>ファミリー ID:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigColorDialog</name>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>Tracking Speed</source>
        <translation>追従速度</translation>
    </message>
    <message>
        <source>Manual WB Coef.</source>
        <translation>手動 WB 係数</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Unity</source>
        <translation>等倍</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Red coef.:</source>
        <translation>赤係数:</translation>
    </message>
    <message>
        <source>Green coef.:</source>
        <translation>緑係数:</translation>
    </message>
    <message>
        <source>Blue coef.:</source>
        <translation>青係数:</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>Tracking speed</source>
        <translation>追従速度</translation>
    </message>
    <message>
        <source>Red coefficient</source>
        <translation>赤係数</translation>
    </message>
    <message>
        <source>Set red to unity</source>
        <translation>赤を等倍にする</translation>
    </message>
    <message>
        <source>Green coefficient</source>
        <translation>緑係数</translation>
    </message>
    <message>
        <source>Set green to unity</source>
        <translation>緑を等倍にする</translation>
    </message>
    <message>
        <source>Blue coefficient</source>
        <translation>青係数</translation>
    </message>
    <message>
        <source>Set blue to unity</source>
        <translation>青を等倍にする</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigFrameABDialog</name>
    <message>
        <source>Frame A/B</source>
        <translation>フレーム A/B</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Frame Mode:</source>
        <translation>フレームモード:</translation>
    </message>
    <message>
        <source>Frames in a Row:</source>
        <translation>連続フレーム数:</translation>
    </message>
    <message>
        <source>A:</source>
        <translation>A:</translation>
    </message>
    <message>
        <source>B:</source>
        <translation>B:</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>センサー</translation>
    </message>
    <message>
        <source>Shutter Mode:</source>
        <translation>シャッターモード:</translation>
    </message>
    <message>
        <source>Bit Depth:</source>
        <translation>ビット深度:</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>フレーム A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>フレーム B</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>露光</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>ライン数:</translation>
    </message>
    <message>
        <source>Clocks [pclk]:</source>
        <translation>クロック数 [pclk]:</translation>
    </message>
    <message>
        <source>Frame Period</source>
        <translation>フレーム周期</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Period [μs]:</source>
        <translation>周期 [μs]:</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>ゲイン</translation>
    </message>
    <message>
        <source>Analog Gain:</source>
        <translation>アナログゲイン:</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>領域</translation>
    </message>
    <message>
        <source>Size of the Image:</source>
        <translation>画像サイズ:</translation>
    </message>
    <message>
        <source>Decimation</source>
        <translation>間引き</translation>
    </message>
    <message>
        <source>Subsampling M:</source>
        <translation>サブサンプリング M:</translation>
    </message>
    <message>
        <source>P:</source>
        <translation>P:</translation>
    </message>
    <message>
        <source>Averaging:</source>
        <translation>平均化:</translation>
    </message>
    <message>
        <source>Wide Dynamic Range</source>
        <translation>ワイドダイナミックレンジ</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Level 1:</source>
        <translation>レベル 1:</translation>
    </message>
    <message>
        <source>Exposure 1:</source>
        <translation>露光 1:</translation>
    </message>
    <message>
        <source>Level 2:</source>
        <translation>レベル 2:</translation>
    </message>
    <message>
        <source>Exposure 2:</source>
        <translation>露光 2:</translation>
    </message>
    <message>
        <source>Level 3:</source>
        <translation>レベル 3:</translation>
    </message>
    <message>
        <source>Exposure 3:</source>
        <translation>露光 3:</translation>
    </message>
    <message>
        <source>Frame mode</source>
        <translation>フレームモード</translation>
    </message>
    <message>
        <source>Number of frames A in a row</source>
        <translation>連続するフレーム A の数</translation>
    </message>
    <message>
        <source>Number of frames B in a row</source>
        <translation>連続するフレーム B の数</translation>
    </message>
    <message>
        <source>Dual video line time in pixel clocks</source>
        <translation>デュアルビデオのライン時間（ピクセルクロック）</translation>
    </message>
    <message>
        <source>Exposure time in microseconds</source>
        <translation>露光時間（マイクロ秒）</translation>
    </message>
    <message>
        <source>Exposure lines</source>
        <translation>露光ライン数</translation>
    </message>
    <message>
        <source>Exposure pixel clocks</source>
        <translation>露光ピクセルクロック数</translation>
    </message>
    <message>
        <source>Line time in pixel clocks</source>
        <translation>ライン時間（ピクセルクロック）</translation>
    </message>
    <message>
        <source>Fixed frame period</source>
        <translation>固定フレーム周期</translation>
    </message>
    <message>
        <source>Frame period in microseconds</source>
        <translation>フレーム周期（マイクロ秒）</translation>
    </message>
    <message>
        <source>Digital gain</source>
        <translation>デジタルゲイン</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>黒レベル</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>水平オフセット</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>垂直オフセット</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Subsampling M</source>
        <translation>サブサンプリング M</translation>
    </message>
    <message>
        <source>Subsampling P</source>
        <translation>サブサンプリング P</translation>
    </message>
    <message>
        <source>Averaging</source>
        <translation>平均化</translation>
    </message>
    <message>
        <source>Wide dynamic range</source>
        <translation>ワイドダイナミックレンジ</translation>
    </message>
    <message>
        <source>Level 1 of the wide dynamic range</source>
        <translation>ワイドダイナミックレンジのレベル 1</translation>
    </message>
    <message>
        <source>Exposure 1 of the wide dynamic range</source>
        <translation>ワイドダイナミックレンジの露光 1</translation>
    </message>
    <message>
        <source>Level 2 of the wide dynamic range</source>
        <translation>ワイドダイナミックレンジのレベル 2</translation>
    </message>
    <message>
        <source>Exposure 2 of the wide dynamic range</source>
        <translation>ワイドダイナミックレンジの露光 2</translation>
    </message>
    <message>
        <source>Level 3 of the wide dynamic range</source>
        <translation>ワイドダイナミックレンジのレベル 3</translation>
    </message>
    <message>
        <source>Exposure 3 of the wide dynamic range</source>
        <translation>ワイドダイナミックレンジの露光 3</translation>
    </message>
    <message>
        <source>Shutter mode</source>
        <translation>シャッターモード</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>ビット深度</translation>
    </message>
    <message>
        <source>Exposure control</source>
        <translation>露光制御</translation>
    </message>
    <message>
        <source>Analog gain</source>
        <translation>アナログゲイン</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigMainWindow</name>
    <message>
        <source>CamConfig</source>
        <translation>カメラ設定</translation>
    </message>
    <message>
        <source>Camera Information</source>
        <translation>カメラ情報</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>フレーム A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>フレーム B</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>PxL</source>
        <translation>画素</translation>
    </message>
    <message>
        <source>FPS</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>FTM</source>
        <translation>フレーム時間</translation>
    </message>
    <message>
        <source>EXP</source>
        <translation>露光時間</translation>
    </message>
    <message>
        <source>TMP</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Frame A/B</source>
        <translation>フレーム A/B</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>パルス</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>ストロボ</translation>
    </message>
    <message>
        <source>Data Out</source>
        <translation>データ出力</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Size of frame A</source>
        <translation>フレーム A のサイズ</translation>
    </message>
    <message>
        <source>Size of frame B</source>
        <translation>フレーム B のサイズ</translation>
    </message>
    <message>
        <source>Frames per second of frame A</source>
        <translation>フレーム A のフレームレート</translation>
    </message>
    <message>
        <source>Frames per second of frame B</source>
        <translation>フレーム B のフレームレート</translation>
    </message>
    <message>
        <source>Frame time of frame A</source>
        <translation>フレーム A のフレーム時間</translation>
    </message>
    <message>
        <source>Frame time of frame B</source>
        <translation>フレーム B のフレーム時間</translation>
    </message>
    <message>
        <source>Exposure time of frame A</source>
        <translation>フレーム A の露光時間</translation>
    </message>
    <message>
        <source>Exposure time of frame B</source>
        <translation>フレーム B の露光時間</translation>
    </message>
    <message>
        <source>Temperature of the camera</source>
        <translation>カメラの温度</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigOutputDialog</name>
    <message>
        <source>Data Output</source>
        <translation>データ出力</translation>
    </message>
    <message>
        <source>Camera Link Output</source>
        <translation>Camera Link 出力</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>タップ数:</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>深度:</translation>
    </message>
    <message>
        <source>Pixel Type</source>
        <translation>ピクセルタイプ</translation>
    </message>
    <message>
        <source>Pixel Format:</source>
        <translation>ピクセルフォーマット:</translation>
    </message>
    <message>
        <source>LUT Settings</source>
        <translation>LUT 設定</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>補正</translation>
    </message>
    <message>
        <source>DPC:</source>
        <translation>DPC:</translation>
    </message>
    <message>
        <source>HPC:</source>
        <translation>HPC:</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>画像反転</translation>
    </message>
    <message>
        <source>H.Mirror</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>V.Mirror</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Test Mode</source>
        <translation>テストモード</translation>
    </message>
    <message>
        <source>Test Pattern:</source>
        <translation>テストパターン:</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>タップ数</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>ピクセルフォーマット</translation>
    </message>
    <message>
        <source>Enable the look-up table</source>
        <translation>ルックアップテーブルを有効にする</translation>
    </message>
    <message>
        <source>Look-up table</source>
        <translation>ルックアップテーブル</translation>
    </message>
    <message>
        <source>Defect pixel correction</source>
        <translation>欠陥画素補正</translation>
    </message>
    <message>
        <source>Dynamic threshold of the defect pixel correction</source>
        <translation>欠陥画素補正の動的しきい値</translation>
    </message>
    <message>
        <source>Hot pixel correction</source>
        <translation>ホットピクセル補正</translation>
    </message>
    <message>
        <source>Dynamic threshold of the hot pixel correction</source>
        <translation>ホットピクセル補正の動的しきい値</translation>
    </message>
    <message>
        <source>Horizontal mirror</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Vertical mirror</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Test pattern</source>
        <translation>テストパターン</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigPulseDialog</name>
    <message>
        <source>Pulse Control</source>
        <translation>パルス制御</translation>
    </message>
    <message>
        <source>Internal Pulse Generator</source>
        <translation>内部パルスジェネレーター</translation>
    </message>
    <message>
        <source>Granularity:</source>
        <translation>分解能:</translation>
    </message>
    <message>
        <source>Period [%1s]:</source>
        <translation>周期 [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>幅 [%1s]:</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>遅延 [%1s]:</translation>
    </message>
    <message>
        <source>Freq. [Hz]:</source>
        <translation>周波数 [Hz]:</translation>
    </message>
    <message>
        <source>Number of Pulses</source>
        <translation>パルス数</translation>
    </message>
    <message>
        <source>Continious</source>
        <translation>連続</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Number of pulses</source>
        <translation>パルス数</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>処理</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Granularity</source>
        <translation>分解能</translation>
    </message>
    <message>
        <source>Period in microseconds</source>
        <translation>周期（マイクロ秒）</translation>
    </message>
    <message>
        <source>Width in microseconds</source>
        <translation>幅（マイクロ秒）</translation>
    </message>
    <message>
        <source>Delay in microseconds</source>
        <translation>遅延（マイクロ秒）</translation>
    </message>
    <message>
        <source>Frequency in hertz</source>
        <translation>周波数（ヘルツ）</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigStrobeDialog</name>
    <message>
        <source>Strobe Control</source>
        <translation>ストロボ制御</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation>ストロボ 1</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>モード:</translation>
    </message>
    <message>
        <source>Reference:</source>
        <translation>基準:</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation>ストロボ 2</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Out1:</source>
        <translation>出力 1:</translation>
    </message>
    <message>
        <source>Polarity of output 1</source>
        <translation>出力 1 の極性</translation>
    </message>
    <message>
        <source>Signal on output 1</source>
        <translation>出力 1 の信号</translation>
    </message>
    <message>
        <source>Out2:</source>
        <translation>出力 2:</translation>
    </message>
    <message>
        <source>Polarity of output 2</source>
        <translation>出力 2 の極性</translation>
    </message>
    <message>
        <source>Signal on output 2</source>
        <translation>出力 2 の信号</translation>
    </message>
    <message>
        <source>Mode of strobe 1</source>
        <translation>ストロボ 1 のモード</translation>
    </message>
    <message>
        <source>Reference of strobe 1</source>
        <translation>ストロボ 1 の基準</translation>
    </message>
    <message>
        <source>Delay of strobe 1 in microseconds</source>
        <translation>ストロボ 1 の遅延（マイクロ秒）</translation>
    </message>
    <message>
        <source>Width of strobe 1 in microseconds</source>
        <translation>ストロボ 1 の幅（マイクロ秒）</translation>
    </message>
    <message>
        <source>Mode of strobe 2</source>
        <translation>ストロボ 2 のモード</translation>
    </message>
    <message>
        <source>Reference of strobe 2</source>
        <translation>ストロボ 2 の基準</translation>
    </message>
    <message>
        <source>Delay of strobe 2 in microseconds</source>
        <translation>ストロボ 2 の遅延（マイクロ秒）</translation>
    </message>
    <message>
        <source>Width of strobe 2 in microseconds</source>
        <translation>ストロボ 2 の幅（マイクロ秒）</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigTriggerDialog</name>
    <message>
        <source>Trigger Control</source>
        <translation>トリガー制御</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Trigger Source:</source>
        <translation>トリガーソース:</translation>
    </message>
    <message>
        <source>Edge:</source>
        <translation>エッジ:</translation>
    </message>
    <message>
        <source>Debounce:</source>
        <translation>デバウンス:</translation>
    </message>
    <message>
        <source>Software
Trigger</source>
        <translation>ソフトウェア
トリガー</translation>
    </message>
    <message>
        <source>Enable the trigger</source>
        <translation>トリガーを有効にする</translation>
    </message>
    <message>
        <source>Trigger source</source>
        <translation>トリガーソース</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>エッジ</translation>
    </message>
    <message>
        <source>Debounce</source>
        <translation>デバウンス</translation>
    </message>
    <message>
        <source>Software trigger</source>
        <translation>ソフトウェアトリガー</translation>
    </message>
</context>
<context>
    <name>OrvCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation>カメラの選択</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation>インターフェース情報(&amp;I)</translation>
    </message>
    <message>
        <source>Interface info</source>
        <translation>インターフェース情報</translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation>デバイス情報(&amp;D)</translation>
    </message>
    <message>
        <source>Device info</source>
        <translation>デバイス情報</translation>
    </message>
    <message>
        <source>Give the camera an IP address of its network adapter&apos;s subnet</source>
        <translation>ネットワークアダプターのサブネットの IP アドレスをカメラに割り当てます</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>Look for cameras that come and go, once a second</source>
        <translation>カメラの接続と切断を 1 秒ごとに調べます</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>定期検索</translation>
    </message>
</context>
<context>
    <name>OrvGui::ControlWatch</name>
    <message>
        <source>Not taken. The camera&apos;s value cannot be read.</source>
        <translation>反映されていません。カメラの値を読み取れません。</translation>
    </message>
    <message>
        <source>Not taken. The camera has %1.</source>
        <translation>反映されていません。カメラの値は %1 です。</translation>
    </message>
    <message>
        <source>The camera&apos;s value is %1.</source>
        <translation>カメラの値は %1 です。</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfig</name>
    <message>
        <source>Select a device</source>
        <translation>デバイスの選択</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>「%1」を開けません: %2</translation>
    </message>
    <message>
        <source>Not read at present: the camera shows &quot;%1&quot;</source>
        <translation>現在は読み取られていません。カメラは「%1」を表示しています</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigAboutDialog</name>
    <message>
        <source>Copyright %1 %2, the authors of OrvCameraGuiApi</source>
        <translation>Copyright %1 %2 OrvCameraGuiApi の作者</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>該当なし</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigFrameABDialog</name>
    <message>
        <source>Dual Video
Line Time [pclk]:</source>
        <translation>デュアルビデオ
ライン時間 [pclk]:</translation>
    </message>
    <message>
        <source>Line Time [pclk]:</source>
        <translation>ライン時間 [pclk]:</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>オフセット X:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>オフセット Y:</translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>幅: </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Digital Gain:</source>
        <translation>デジタルゲイン:</translation>
    </message>
    <message>
        <source>Black Level:</source>
        <translation>黒レベル:</translation>
    </message>
    <message>
        <source>Exposure Time [%1s]:</source>
        <translation>露光時間 [%1s]:</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigMapper</name>
    <message>
        <source>Unknown code</source>
        <translation>不明なコード</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>File read error</source>
        <translation>ファイル読み取りエラー</translation>
    </message>
    <message>
        <source>Wrong configuration</source>
        <translation>設定が正しくありません</translation>
    </message>
    <message>
        <source>Invalid index</source>
        <translation>無効なインデックス</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>デバイスがありません</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>無効な引数</translation>
    </message>
    <message>
        <source>Invalid state</source>
        <translation>無効な状態</translation>
    </message>
    <message>
        <source>Flash erase error</source>
        <translation>フラッシュ消去エラー</translation>
    </message>
    <message>
        <source>GenICam: Generic error</source>
        <translation>GenICam: 一般エラー</translation>
    </message>
    <message>
        <source>GenICam: Tree error</source>
        <translation>GenICam: ツリーエラー</translation>
    </message>
    <message>
        <source>GenICam: Access error</source>
        <translation>GenICam: アクセスエラー</translation>
    </message>
    <message>
        <source>GenICam: Parameter type is invalid</source>
        <translation>GenICam: パラメーターの型が無効です</translation>
    </message>
    <message>
        <source>GenICam: Parameter is out of range</source>
        <translation>GenICam: パラメーターが範囲外です</translation>
    </message>
    <message>
        <source>GenICam: Unknown param</source>
        <translation>GenICam: 不明なパラメーター</translation>
    </message>
    <message>
        <source>GenICam: Invalid argument</source>
        <translation>GenICam: 無効な引数</translation>
    </message>
    <message>
        <source>Error while working with &apos;%1&apos; parameter!<byte value="xd"/>
Description: %2</source>
        <translation>パラメーター「%1」の処理中にエラーが発生しました。<byte value="xd"/>
説明: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigOutputDialog</name>
    <message>
        <source>Dyn.Thres.:</source>
        <translation>動的しきい値:</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigPulseDialog</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Pulses</source>
        <translation>パルス</translation>
    </message>
    <message>
        <source>Pulses are generated</source>
        <translation>パルスを生成しています</translation>
    </message>
    <message>
        <source>No pulses are generated</source>
        <translation>パルスは生成されていません</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigStrobeDialog</name>
    <message>
        <source>Both strobes count from the start of the readout</source>
        <translation>両ストロボとも読み出し開始を基準とする</translation>
    </message>
    <message>
        <source>Strobe 1 counts from the start of the readout, strobe 2 from that of the exposure</source>
        <translation>ストロボ 1 は読み出し開始、ストロボ 2 は露光開始を基準とする</translation>
    </message>
    <message>
        <source>Strobe 1 counts from the start of the exposure, strobe 2 from that of the readout</source>
        <translation>ストロボ 1 は露光開始、ストロボ 2 は読み出し開始を基準とする</translation>
    </message>
    <message>
        <source>Both strobes count from the start of the exposure</source>
        <translation>両ストロボとも露光開始を基準とする</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>遅延 [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>幅 [%1s]:</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCameraSelectorDialog</name>
    <message>
        <source>&amp;Rescan</source>
        <translation>再検索(&amp;R)</translation>
    </message>
    <message>
        <source>Look for cameras once, while polling is off</source>
        <translation>定期検索がオフのとき、カメラを 1 回検索します</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation>IP 設定の警告</translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation>指定した IP 設定は正しくありません。カメラを検出できなくなる可能性があります。
設定を中止するには「OK」を、このまま設定するには「無視」を押してください。</translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation>IP アドレスを設定できません</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvFeatureTreeTools</name>
    <message>
        <source>There is no feature &apos;%1&apos;.</source>
        <translation>機能「%1」はありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not meant to be shown.</source>
        <translation>「%1」は表示対象ではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is shown at the level %2.</source>
        <translation>「%1」はレベル %2 で表示されます。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is hidden by the filter.</source>
        <translation>「%1」は絞り込みにより非表示です。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not shown.</source>
        <translation>「%1」は表示されていません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not shown: %2.</source>
        <translation>「%1」は表示されていません: %2。</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvGenParamTreeView</name>
    <message>
        <source>Clear filter</source>
        <translation>絞り込みを解除</translation>
    </message>
    <message>
        <source>Filter options</source>
        <translation>絞り込みのオプション</translation>
    </message>
    <message>
        <source>There are errors</source>
        <translation>エラーがあります</translation>
    </message>
    <message>
        <source>No errors</source>
        <translation>エラーなし</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
</context>
<context>
    <name>QtOrvSpinBox</name>
    <message>
        <source>Slider</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>%1 slider</source>
        <translation>%1 スライダー</translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation>ネットワークアダプターの IP 設定</translation>
    </message>
    <message>
        <source>MAC Address        </source>
        <translation>MAC アドレス        </translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>サブネットマスク</translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation>カメラの IP 設定</translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation>IP アドレス(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation>サブネットマスク(&amp;S)</translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation>デフォルトゲートウェイ(&amp;G)</translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation>サブネットマスクが一致しません</translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation>IP 設定は正常です</translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation>IP アドレスが正しくありません</translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation>IP のサブネットが一致しません</translation>
    </message>
    <message>
        <source>MAC address of the network adapter</source>
        <translation>ネットワークアダプターの MAC アドレス</translation>
    </message>
    <message>
        <source>IP address of the network adapter</source>
        <translation>ネットワークアダプターの IP アドレス</translation>
    </message>
    <message>
        <source>Subnet mask of the network adapter</source>
        <translation>ネットワークアダプターのサブネットマスク</translation>
    </message>
    <message>
        <source>MAC address of the camera</source>
        <translation>カメラの MAC アドレス</translation>
    </message>
    <message>
        <source>IP address of the camera</source>
        <translation>カメラの IP アドレス</translation>
    </message>
    <message>
        <source>Subnet mask of the camera</source>
        <translation>カメラのサブネットマスク</translation>
    </message>
    <message>
        <source>Default gateway of the camera</source>
        <translation>カメラのデフォルトゲートウェイ</translation>
    </message>
    <message>
        <source>The IP address is not complete.</source>
        <translation>IP アドレスが完全ではありません。</translation>
    </message>
    <message>
        <source>The default gateway is not complete.</source>
        <translation>デフォルトゲートウェイが完全ではありません。</translation>
    </message>
    <message>
        <source>The subnet mask is not complete.</source>
        <translation>サブネットマスクが完全ではありません。</translation>
    </message>
    <message>
        <source>This is the address of the subnet itself.</source>
        <translation>これはサブネット自体のアドレスです。</translation>
    </message>
    <message>
        <source>This is the subnet&apos;s broadcast address.</source>
        <translation>これはサブネットのブロードキャストアドレスです。</translation>
    </message>
    <message>
        <source>This is the gateway&apos;s address.</source>
        <translation>これはゲートウェイのアドレスです。</translation>
    </message>
</context>
</TS>
