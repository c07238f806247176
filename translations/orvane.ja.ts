<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Orvane</name>
    <message>
        <source>&quot;%1&quot; cannot be changed: %2.</source>
        <translation>「%1」は変更できません: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>「%1」を読み込めません: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>「%1」を書き込めません: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no picture.</source>
        <translation>「%1」には画像がありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no readable data.</source>
        <translation>「%1」には読み込めるデータがありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains nothing to draw.</source>
        <translation>「%1」には描画できるものがありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say where it lies: there is no world file &quot;%2&quot; beside it, and it contains no coordinates of its own, as a GeoTIFF does.</source>
        <translation>「%1」の位置が不明です。同じフォルダーにワールドファイル「%2」がなく、GeoTIFF のような座標も含まれていません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no column named &quot;%2&quot;. Its columns are: %3</source>
        <translation>「%1」に「%2」という列はありません。列は次のとおりです: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layer named &quot;%2&quot;.</source>
        <translation>「%1」には「%2」という名前のレイヤーがありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in &quot;%2&quot; cannot be read.</source>
        <translation>「%2」の中の「%1」を読み込めません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table on a server. It can only be read by a map on that server.</source>
        <translation>「%1」はサーバー上のテーブルです。そのサーバー上の地図からのみ読み込めます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table on a server. This works only with data in files.</source>
        <translation>「%1」はサーバー上のテーブルです。この操作はファイルのデータに対してのみ行えます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a table without columns for coordinates.</source>
        <translation>「%1」は座標の列がない表です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing from &quot;%2&quot;.</source>
        <translation>「%1」が「%2」にありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale. Type one such as %2.</source>
        <translation>「%1」は縮尺ではありません。%2 のように入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid page size.</source>
        <translation>「%1」は有効なページサイズではありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file</source>
        <translation>「%1」は通常のファイルではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not opened because &quot;%2&quot; is not an ordinary file.</source>
        <translation>「%2」は通常のファイルではないため、「%1」を開きませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, row &quot;%2&quot;: %3 &quot;%4&quot; is not a valid value.</source>
        <translation>「%1」の行「%2」: %3「%4」は無効な値です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, row &quot;%2&quot;: %3 &quot;%4&quot; was replaced by %5.</source>
        <translation>「%1」の行「%2」: %3「%4」を %5 に置き換えました。</translation>
    </message>
    <message>
        <source>&quot;--columns&quot; needs two names: &quot;X,Y&quot;.</source>
        <translation>「--columns」には 2 つの名前「X,Y」が必要です。</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is not the place of a map on a server, such as postgresql://server/database?schema=Map.</source>
        <translation>「^1」はサーバー上のマップの場所ではありません（例：postgresql://server/database?schema=Map）。</translation>
    </message>
    <message>
        <source>%1
Unit: %2
Area of use: %3</source>
        <translation>%1
単位: %2
適用範囲: %3</translation>
    </message>
    <message>
        <source>%1 (areas)</source>
        <translation>%1 (面)</translation>
    </message>
    <message>
        <source>%1 (in the map's system)</source>
        <translation>%1 (地図の座標系)</translation>
    </message>
    <message>
        <source>%1 (left out)</source>
        <translation>%1 (除外)</translation>
    </message>
    <message>
        <source>%1 (lines)</source>
        <translation>%1 (線)</translation>
    </message>
    <message>
        <source>%1 (longitude, latitude)</source>
        <translation>%1 (経度, 緯度)</translation>
    </message>
    <message>
        <source>%1 (points)</source>
        <translation>%1 (点)</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (読み取り専用)</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1、ほか %2 件</translation>
    </message>
    <message>
        <source>%1 to %2 east, %3 to %4 north</source>
        <translation>東 %1 ～ %2、北 %3 ～ %4</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, bands: %3</source>
        <translation>%1 x %2 ピクセル、バンド数: %3</translation>
    </message>
    <message>
        <source>%1. It shows neither labels nor classes: choose another in the layer control.</source>
        <translation>%1。ラベルも区分も表示しません。レイヤーコントロールで別のスタイルを選んでください。</translation>
    </message>
    <message>
        <source>%1: features %2, extent %3</source>
        <translation>%1: 地物 %2、範囲 %3</translation>
    </message>
    <message>
        <source>%1: may edit</source>
        <translation>%1: 編集できます</translation>
    </message>
    <message>
        <source>%1: may read</source>
        <translation>%1: 閲覧できます</translation>
    </message>
    <message>
        <source>%1: raster of %2 x %3 pixels, extent %4</source>
        <translation>%1: ラスター %2 x %3 ピクセル、範囲 %4</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>追加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Apply When the Map Is Opened</source>
        <translation>地図を開いたときに適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;As the Source Says</source>
        <translation>データの指定どおり(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>変更(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>配色(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Coordinate System of the Map...</source>
        <translation>地図の座標系(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>行をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Give</source>
        <translation>与える(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>ガイド(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Holds...</source>
        <translation>内容(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Move Up</source>
        <translation>上へ(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Name of the map:</source>
        <translation>地図の名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>新規(&amp;N)...</translation>
    </message>
    <message>
        <source>&quot;--to MAP&quot; is missing.</source>
        <translation>「--to MAP」がありません。</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be created because a file of that name exists already.</source>
        <translation>同じ名前のファイルがすでに存在するため、「^1」を作成できません。</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be stored: ^2</source>
        <translation>「^1」を保存できません: ^2</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is not a map file.</source>
        <translation>「^1」は地図ファイルではありません。</translation>
    </message>
    <message>
        <source>&quot;^1&quot; is open in another window or program and cannot be replaced. Close it there, or choose another name.</source>
        <translation>「^1」は別のウィンドウまたはプログラムで開かれているため、置き換えられません。そちらを閉じるか、別の名前を選んでください。</translation>
    </message>
    <message>
        <source>&quot;orvane %1--help&quot; lists the options.</source>
        <translation>「orvane %1--help」でオプションを表示します。</translation>
    </message>
    <message>
        <source>%1 (in %2 layers)</source>
        <translation>%1 (%2個のレイヤー)</translation>
    </message>
    <message>
        <source>%1 - Orvane</source>
        <translation>%1 - Orvane</translation>
    </message>
    <message>
        <source>%1 is here but hidden at this scale.</source>
        <translation>%1 はここにありますが、この縮尺では表示されません。</translation>
    </message>
    <message>
        <source>%1 is here but hidden by its quick mode.</source>
        <translation>%1 はここにありますが、クイックモードで非表示になっています。</translation>
    </message>
    <message>
        <source>%1 is here but locked.</source>
        <translation>%1 はここにありますが、ロックされています。</translation>
    </message>
    <message>
        <source>%1 is here but not enquirable.</source>
        <translation>%1 はここにありますが、照会できません。</translation>
    </message>
    <message>
        <source>%1 is here but not hitable.</source>
        <translation>%1 はここにありますが、クリックできません。</translation>
    </message>
    <message>
        <source>%1 is here but not selectable.</source>
        <translation>%1 はここにありますが、選択できません。</translation>
    </message>
    <message>
        <source>%1 is here but not visible.</source>
        <translation>%1 はここにありますが、表示されていません。</translation>
    </message>
    <message>
        <source>%1 is here but snapping to it is off.</source>
        <translation>%1 はここにありますが、スナップの対象ではありません。</translation>
    </message>
    <message>
        <source>%1 layers</source>
        <translation>%1個のレイヤー</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>他%1個</translation>
    </message>
    <message>
        <source>%1 Steps</source>
        <translation>%1個の操作</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1, not for symbols</source>
        <translation>%1、記号には不使用</translation>
    </message>
    <message>
        <source>%1: your value is %2, stored is %3</source>
        <translation>%1: あなたの値は %2、保存されている値は %3</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>東経%1°</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>北緯%1°</translation>
    </message>
    <message>
        <source>%1° S</source>
        <translation>南緯%1°</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>西経%1°</translation>
    </message>
    <message>
        <source>&amp;About Orvane</source>
        <translation>Orvane について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Attribute:</source>
        <translation>属性(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>値をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Delete Theme</source>
        <translation>テーマを削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Division:</source>
        <translation>区分方法(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;Dock Layer Control</source>
        <translation>レイヤーコントロールをドッキング(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Export Map...</source>
        <translation>地図の書き出し(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Export Scheme...</source>
        <translation>スキームを書き出し(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>書き出し(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Find Missing Data...</source>
        <translation>見つからないデータを検索(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>比較元(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Geometry:</source>
        <translation>ジオメトリ(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Highlight Under Pointer</source>
        <translation>ポインター下を強調表示(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation>属性照会(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Import Scheme...</source>
        <translation>スキームを読み込み(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>読み込み(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Keep Layers</source>
        <translation>レイヤを変えない(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Keep the Stored Ones</source>
        <translation>保存されている値を保持(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Layer Control</source>
        <translation>レイヤーコントロール(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>レイヤ(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>レイヤー(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Legend of what is shown</source>
        <translation>見えているものの凡例(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Make a layer scheme of each of these map themes:</source>
        <translation>これらの地図テーマからレイヤースキームを作成(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Move Feature</source>
        <translation>地物を移動(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;New Map...</source>
        <translation>新しい地図(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;New Theme from Visible Layers...</source>
        <translation>表示中のレイヤから新しいテーマ(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Next Row</source>
        <translation>次の行(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Next View</source>
        <translation>次の表示範囲(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Nowhere; leave this table out</source>
        <translation>ない。この表を除外する(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Number of classes:</source>
        <translation>階級数(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Open Map...</source>
        <translation>地図を開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Pan and Zoom</source>
        <translation>移動とズーム(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>用紙(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Preview...</source>
        <translation>プレビュー(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Previous Row</source>
        <translation>前の行(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Previous View</source>
        <translation>前の表示範囲(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Remove Map...</source>
        <translation>地図を削除(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Rename Theme</source>
        <translation>テーマの名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>名前の変更(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>解像度(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Reverse the colours</source>
        <translation>配色を反転(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Revert to Saved Scheme</source>
        <translation>保存したスキームに戻す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Save Map As...</source>
        <translation>地図に名前を付けて保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Save Scheme</source>
        <translation>スキームを保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Save Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」を保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Schemes</source>
        <translation>スキーム(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>選択(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Service, or address of the database:</source>
        <translation>サービスまたはデータベースのアドレス(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>大きさ(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Store My Values</source>
        <translation>自分の値を保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;System:</source>
        <translation>座標系(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>取り消す(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>反映(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>表題(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Use It Now</source>
        <translation>今すぐ使う(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;X, east or longitude:</source>
        <translation>X、東または経度(&amp;X):</translation>
    </message>
    <message>
        <source>&amp;Y, north or latitude:</source>
        <translation>Y、北または緯度(&amp;Y):</translation>
    </message>
    <message>
        <source>&amp;Zoom by Rectangle</source>
        <translation>矩形でズーム(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;Zoom to Selection</source>
        <translation>選択範囲にズーム(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;in</source>
        <translation>対象(&amp;I)</translation>
    </message>
    <message>
        <source>--%1 needs a number from %2 to %3.</source>
        <translation>--%1 には %2 から %3 までの数が必要です。</translation>
    </message>
    <message>
        <source>--%1: &quot;%2&quot; is not a known coordinate system.</source>
        <translation>--%1: 「%2」は既知の座標系ではありません。</translation>
    </message>
    <message>
        <source>A code such as EPSG:25832, WKT or a PROJ string</source>
        <translation>EPSG:25832 などのコード、WKT、PROJ 文字列</translation>
    </message>
    <message>
        <source>A raster has no attributes, and so no labels and classes.</source>
        <translation>ラスターには属性がないため、ラベルも分類もありません。</translation>
    </message>
    <message>
        <source>A raster has no attributes.</source>
        <translation>ラスターには属性がありません。</translation>
    </message>
    <message>
        <source>A service is an entry of PostgreSQL&apos;s file pg_service.conf, which your administrator may have set up. Leave the password out: it belongs in PostgreSQL&apos;s password file, or you are asked for it.</source>
        <translation>サービスとは、PostgreSQL のファイル pg_service.conf の項目で、管理者が設定している場合があります。パスワードは書かないでください。PostgreSQL のパスワードファイルに書くか、求められたときに入力します。</translation>
    </message>
    <message>
        <source>A value cannot be stored in &quot;^1&quot;: ^2</source>
        <translation>値を「^1」に保存できません: ^2</translation>
    </message>
    <message>
        <source>Add PostGIS tables of the map&apos;s server to the map</source>
        <translation>地図のサーバーにある PostGIS テーブルを地図に追加します</translation>
    </message>
    <message>
        <source>Add Server</source>
        <translation>サーバーの追加</translation>
    </message>
    <message>
        <source>Add Ta&amp;bles from Server...</source>
        <translation>サーバーのテーブルを追加(&amp;B)...</translation>
    </message>
    <message>
        <source>Add Tables from Server</source>
        <translation>サーバーのテーブルを追加</translation>
    </message>
    <message>
        <source>Add aerial photographs, scanned maps or elevation grids to the map</source>
        <translation>航空写真、スキャンした地図、標高グリッドを地図に追加します</translation>
    </message>
    <message>
        <source>Add data to a map file: a group for each file, a layer for each of its layers.
Exit code: 0 all was added, 1 something was not or has no known place, 2 the command was not understood.</source>
        <translation>地図ファイルにデータを追加します。ファイルごとにグループ、その中のレイヤーごとにレイヤーができます。
終了コード: 0 すべて追加、1 追加できないものまたは位置不明のものあり、2 コマンドが正しくありません。</translation>
    </message>
    <message>
        <source>Add the server of your team. Your administrator knows its name.</source>
        <translation>チームのサーバーを追加してください。名前は管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>All attributes</source>
        <translation>すべての属性</translation>
    </message>
    <message>
        <source>Also opened by: %1</source>
        <translation>他に開いている人: %1</translation>
    </message>
    <message>
        <source>Also opened by: %1 and %2 more</source>
        <translation>他に開いている人: %1、ほか %2 人</translation>
    </message>
    <message>
        <source>Apply No Scheme at Opening</source>
        <translation>開いたときにスキームを適用しない</translation>
    </message>
    <message>
        <source>Apply Scheme &quot;%1&quot; at Opening</source>
        <translation>開いたときのスキーム「%1」の適用</translation>
    </message>
    <message>
        <source>Area of use</source>
        <translation>適用範囲</translation>
    </message>
    <message>
        <source>As this &amp;layer:</source>
        <translation>このレイヤーと同じ(&amp;L):</translation>
    </message>
    <message>
        <source>Asking the server...</source>
        <translation>サーバーに問い合わせています...</translation>
    </message>
    <message>
        <source>At opening</source>
        <translation>開いたとき</translation>
    </message>
    <message>
        <source>Attribute &amp;Table...</source>
        <translation>属性テーブル(&amp;T)...</translation>
    </message>
    <message>
        <source>Attribute Table</source>
        <translation>属性テーブル</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Attributes of %1</source>
        <translation>%1 の属性</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>バンド %1</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Blue to red, pale in the middle</source>
        <translation>青から赤 (中間は淡色)</translation>
    </message>
    <message>
        <source>Blues</source>
        <translation>青系</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>読み込めません</translation>
    </message>
    <message>
        <source>Centre Here</source>
        <translation>ここを中心に表示</translation>
    </message>
    <message>
        <source>Change Coordinate System of Data</source>
        <translation>データの座標系の変更</translation>
    </message>
    <message>
        <source>Change Coordinate System of the Map</source>
        <translation>地図の座標系の変更</translation>
    </message>
    <message>
        <source>Change What Scheme &quot;%1&quot; Holds</source>
        <translation>スキーム「%1」の内容の変更</translation>
    </message>
    <message>
        <source>Choose a layer in the layer control first.</source>
        <translation>先にレイヤーコントロールでレイヤーを選択してください。</translation>
    </message>
    <message>
        <source>Choose the colour under all layers</source>
        <translation>すべてのレイヤーの下の色を選びます</translation>
    </message>
    <message>
        <source>Choose the columns with the coordinates of the tables in the map</source>
        <translation>地図の中の表について、座標の列を選びます</translation>
    </message>
    <message>
        <source>Choose the columns, please.</source>
        <translation>列を選んでください。</translation>
    </message>
    <message>
        <source>Choose the coordinate system that the map is shown in</source>
        <translation>地図を表示する座標系を選択します</translation>
    </message>
    <message>
        <source>Choose where the files with the data of the map are on this computer</source>
        <translation>地図のデータファイルがこのコンピューターのどこにあるかを選びます</translation>
    </message>
    <message>
        <source>Choose who may read and edit a map on a server; without options, list them. A role is a user of the server or a group of users; &quot;public&quot; is everybody. Only the owner of the map can change this.
Exit code: 0 done, 1 not done, 2 the command was not understood.</source>
        <translation>サーバー上の地図を誰が閲覧、編集できるかを決めます。オプションがなければ一覧を表示します。ロールとは、サーバーのユーザーまたはユーザーのグループです。「public」は全員を表します。変更できるのは地図の所有者だけです。
終了コード: 0 完了、1 未完了、2 コマンドを解釈できません。</translation>
    </message>
    <message>
        <source>Choose who may read and edit the map on its server</source>
        <translation>サーバー上の地図を誰が閲覧、編集できるかを決めます</translation>
    </message>
    <message>
        <source>Click a feature to see its attributes, or a raster to see its values.</source>
        <translation>地物をクリックすると属性が、ラスターをクリックすると値が表示されます。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>サーバーに接続しています</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Coordinate System of the Data</source>
        <translation>データの座標系</translation>
    </message>
    <message>
        <source>Coordinate System of the Layer</source>
        <translation>レイヤーの座標系</translation>
    </message>
    <message>
        <source>Coordinate System of the Map</source>
        <translation>地図の座標系</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>座標系</translation>
    </message>
    <message>
        <source>Coordinate system of the map: %1</source>
        <translation>地図の座標系: %1</translation>
    </message>
    <message>
        <source>Coordinate system of the map: %1
Unit: %2
Area of use: %3</source>
        <translation>地図の座標系: %1
単位: %2
適用範囲: %3</translation>
    </message>
    <message>
        <source>Coordinate system:</source>
        <translation>座標系:</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>座標系の一覧</translation>
    </message>
    <message>
        <source>Coordinates of &quot;%1&quot; are in these columns: %2</source>
        <translation>「%1」の座標の列: %2</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>値をコピー(&amp;V)</translation>
    </message>
    <message>
        <source>Copy Coordinates</source>
        <translation>座標をコピー</translation>
    </message>
    <message>
        <source>Copying the rows</source>
        <translation>行をコピーしています</translation>
    </message>
    <message>
        <source>Delete Theme &quot;%1&quot;</source>
        <translation>テーマ「%1」の削除</translation>
    </message>
    <message>
        <source>Drag a rectangle to zoom to it. A click zooms in, with Ctrl out.</source>
        <translation>矩形をドラッグするとその範囲にズームします。クリックで拡大、Ctrl を押しながらで縮小します。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Everybody</source>
        <translation>全員</translation>
    </message>
    <message>
        <source>Extent:</source>
        <translation>範囲:</translation>
    </message>
    <message>
        <source>Features found: %1, rasters: %2</source>
        <translation>見つかった地物: %1、ラスター: %2</translation>
    </message>
    <message>
        <source>Features:</source>
        <translation>地物数:</translation>
    </message>
    <message>
        <source>File or source:</source>
        <translation>ファイルまたはデータ元:</translation>
    </message>
    <message>
        <source>Fill colours of the layer</source>
        <translation>レイヤーの塗りつぶしの色</translation>
    </message>
    <message>
        <source>First rows</source>
        <translation>最初の行</translation>
    </message>
    <message>
        <source>Folder of S&amp;hared Data...</source>
        <translation>共有データのフォルダー(&amp;H)...</translation>
    </message>
    <message>
        <source>Folder of Shared Data</source>
        <translation>共有データのフォルダー</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>一覧から外す(&amp;G)</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>形式:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>From dark to light, for a map with a dark background</source>
        <translation>暗い色から明るい色へ (背景が暗い地図用)</translation>
    </message>
    <message>
        <source>Geometry:</source>
        <translation>ジオメトリ:</translation>
    </message>
    <message>
        <source>Greens</source>
        <translation>緑系</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>灰色系</translation>
    </message>
    <message>
        <source>In &amp;one column with geometries as text (WKT)</source>
        <translation>ジオメトリをテキスト (WKT) で持つ 1 つの列(&amp;O)</translation>
    </message>
    <message>
        <source>In &amp;two columns with numbers</source>
        <translation>数値の 2 つの列(&amp;T)</translation>
    </message>
    <message>
        <source>It is used until Orvane ends, and stored nowhere.</source>
        <translation>Orvane を終了するまで使われ、どこにも保存されません。</translation>
    </message>
    <message>
        <source>It was assumed or chosen; the source cannot be read.</source>
        <translation>推定または選択されました。データを読み込めません。</translation>
    </message>
    <message>
        <source>It was assumed or chosen; the source names none.</source>
        <translation>推定または選択されました。データには指定がありません。</translation>
    </message>
    <message>
        <source>It was chosen; the source says %1.</source>
        <translation>選択されました。データの指定は %1 です。</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>最終変更</translation>
    </message>
    <message>
        <source>Layer &amp;Properties...</source>
        <translation>レイヤーのプロパティ(&amp;P)...</translation>
    </message>
    <message>
        <source>Layer Properties</source>
        <translation>レイヤーのプロパティ</translation>
    </message>
    <message>
        <source>Layer Properties...</source>
        <translation>レイヤーのプロパティ...</translation>
    </message>
    <message>
        <source>Layer Rendering...</source>
        <translation>レイヤーの描画...</translation>
    </message>
    <message>
        <source>Layer in it:</source>
        <translation>その中のレイヤー:</translation>
    </message>
    <message>
        <source>Layers &gt; Layer Properties... changes this.</source>
        <translation>[レイヤー] &gt; [レイヤーのプロパティ...] で変更できます。</translation>
    </message>
    <message>
        <source>Layers whose data were found: %1 of %2</source>
        <translation>データが見つかったレイヤー: %2 のうち %1</translation>
    </message>
    <message>
        <source>Let ROLE read and change the map.</source>
        <translation>ROLE に地図の閲覧と変更を許可します。</translation>
    </message>
    <message>
        <source>Let ROLE read the map.</source>
        <translation>ROLE に地図の閲覧を許可します。</translation>
    </message>
    <message>
        <source>List the layers of a map: the number of features, and the extent in the map&apos;s coordinate system as west, south, east and north.
Exit code: 0 all was read, 1 something was not, 2 the command was not understood.</source>
        <translation>地図のレイヤーを一覧表示します: 地物の数と、地図の座標系での範囲 (西、南、東、北)。
終了コード: 0 すべて読めた、1 読めないものがあった、2 コマンドを理解できない。</translation>
    </message>
    <message>
        <source>List the options.</source>
        <translation>オプションを一覧表示します。</translation>
    </message>
    <message>
        <source>Lists of the layers that you need for one task, without settings</source>
        <translation>ある作業に必要なレイヤーの一覧 (設定は含みません)</translation>
    </message>
    <message>
        <source>Looking for tables</source>
        <translation>テーブルを探しています</translation>
    </message>
    <message>
        <source>Map &amp;Background...</source>
        <translation>地図の背景色(&amp;B)...</translation>
    </message>
    <message>
        <source>Map Background</source>
        <translation>地図の背景色</translation>
    </message>
    <message>
        <source>Map data (%1);;All files (*)</source>
        <translation>地図データ (%1);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Maps on the server</source>
        <translation>サーバー上の地図</translation>
    </message>
    <message>
        <source>Named sets of the settings of all layers</source>
        <translation>すべてのレイヤーの設定をまとめて名前を付けたもの</translation>
    </message>
    <message>
        <source>New Theme &quot;%1&quot;</source>
        <translation>テーマ「%1」の作成</translation>
    </message>
    <message>
        <source>No coordinate system</source>
        <translation>座標系なし</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1, and none was found that fits. The coordinates are taken as those of the map.</source>
        <translation>%1 には座標系が指定されておらず、合うものも見つかりませんでした。座標は地図のものとみなします。</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1, and none was found that fits. Which one is it? With Cancel, the data are added as if they had the coordinates of the map.</source>
        <translation>%1 には座標系が指定されておらず、合うものも見つかりませんでした。どの座標系ですか? キャンセルすると、データは地図の座標であるものとして追加されます。</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. It is taken as the chosen one, %2.</source>
        <translation>%1 には座標系が指定されていません。選択された %2 とみなします。</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. The coordinates fit degrees, so it is taken as %2.</source>
        <translation>%1 には座標系が指定されていません。座標が度の範囲に収まるため、%2 とみなします。</translation>
    </message>
    <message>
        <source>No coordinate system is named by %1. The coordinates fit the map, so it is taken as %2.</source>
        <translation>%1 には座標系が指定されていません。座標が地図に合うため、%2 とみなします。</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>データなし</translation>
    </message>
    <message>
        <source>Not everything in these layers has a place in %1: %2. It is shown again in a system that has one.</source>
        <translation>次のレイヤーには、%1 で表せない部分があります: %2。表せる座標系に変えると再び表示されます。</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Only maps on a server can be shared.</source>
        <translation>共有できるのはサーバー上の地図だけです。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Open Map from Ser&amp;ver...</source>
        <translation>サーバーから地図を開く(&amp;V)...</translation>
    </message>
    <message>
        <source>Open Map from Server</source>
        <translation>サーバーから地図を開く</translation>
    </message>
    <message>
        <source>Open Ras&amp;ter...</source>
        <translation>ラスターを開く(&amp;T)...</translation>
    </message>
    <message>
        <source>Open Raster</source>
        <translation>ラスターを開く</translation>
    </message>
    <message>
        <source>Open a map that a team shares on a PostgreSQL server</source>
        <translation>チームが PostgreSQL サーバーで共有している地図を開きます</translation>
    </message>
    <message>
        <source>Open by</source>
        <translation>開いている人</translation>
    </message>
    <message>
        <source>Oranges</source>
        <translation>オレンジ系</translation>
    </message>
    <message>
        <source>Orvane Guide</source>
        <translation>Orvane ガイド</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>所有者</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Password of &quot;%1&quot; on the server &quot;%2&quot;:</source>
        <translation>サーバー「%2」での「%1」のパスワード:</translation>
    </message>
    <message>
        <source>Pixel size:</source>
        <translation>ピクセルサイズ:</translation>
    </message>
    <message>
        <source>Purples</source>
        <translation>紫系</translation>
    </message>
    <message>
        <source>R&amp;ights...</source>
        <translation>権限(&amp;I)...</translation>
    </message>
    <message>
        <source>R&amp;ole:</source>
        <translation>ロール(&amp;O):</translation>
    </message>
    <message>
        <source>Raster</source>
        <translation>ラスター</translation>
    </message>
    <message>
        <source>Raster:</source>
        <translation>ラスター:</translation>
    </message>
    <message>
        <source>Rasters (%1);;All files (*)</source>
        <translation>ラスター (%1);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Rasters found: %1</source>
        <translation>見つかったラスター: %1</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>更新(&amp;F)</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>閲覧</translation>
    </message>
    <message>
        <source>Read about the window or the tool that is in use</source>
        <translation>使用中のウィンドウやツールの説明を読みます</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Reading the rows...</source>
        <translation>行を読み込んでいます...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove Map</source>
        <translation>地図の削除</translation>
    </message>
    <message>
        <source>Remove the map &quot;%1&quot; from the server? All its layers, groups and schemes are lost, for everybody. This cannot be undone.</source>
        <translation>地図「%1」をサーバーから削除しますか? すべてのレイヤー、グループ、スキームが全員にとって失われます。この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Rename Theme</source>
        <translation>テーマの名前を変更</translation>
    </message>
    <message>
        <source>Rename Theme &quot;%1&quot;</source>
        <translation>テーマ「%1」の名前の変更</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>Rights on &quot;%1&quot;</source>
        <translation>「%1」の権限</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Roles are the users of the server, and groups of them. Those who may read see everything in the map; those who may edit can change it, too.</source>
        <translation>ロールとは、サーバーのユーザーとそのグループです。閲覧できる人は地図の内容をすべて見ることができ、編集できる人は変更もできます。</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>行数: %1</translation>
    </message>
    <message>
        <source>Rows: %1 of %2</source>
        <translation>行数: %1 / %2</translation>
    </message>
    <message>
        <source>Save &amp;Map on Server...</source>
        <translation>地図をサーバーに保存(&amp;M)...</translation>
    </message>
    <message>
        <source>Save Map on Server</source>
        <translation>地図をサーバーに保存</translation>
    </message>
    <message>
        <source>Saving the map</source>
        <translation>地図を保存しています</translation>
    </message>
    <message>
        <source>Scale of the map</source>
        <translation>地図の縮尺</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>名前で検索</translation>
    </message>
    <message>
        <source>Search by name, code or area</source>
        <translation>名前、コード、地域で検索</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>検索しています...</translation>
    </message>
    <message>
        <source>Select features on the map first.</source>
        <translation>先に地図上で地物を選択してください。</translation>
    </message>
    <message>
        <source>Select fewer layers: each has a window of its own.</source>
        <translation>選択するレイヤーを減らしてください。レイヤーごとにウィンドウが開きます。</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>選択: %1</translation>
    </message>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>サーバー(&amp;V):</translation>
    </message>
    <message>
        <source>Show &amp;Selected Only</source>
        <translation>選択した行のみ表示(&amp;S)</translation>
    </message>
    <message>
        <source>Show all features of the layers that are chosen in the layer control</source>
        <translation>レイヤーコントロールで選択されたレイヤーの地物をすべて表示します</translation>
    </message>
    <message>
        <source>Show all selected features</source>
        <translation>選択された地物をすべて表示します</translation>
    </message>
    <message>
        <source>Show only the rows that are selected, here or on the map</source>
        <translation>ここまたは地図で選択されている行だけを表示します</translation>
    </message>
    <message>
        <source>Show the attributes of all features of a layer</source>
        <translation>レイヤーのすべての地物の属性を表示します</translation>
    </message>
    <message>
        <source>Show the data of a layer, and choose their coordinate system</source>
        <translation>レイヤーのデータを表示し、その座標系を選択します</translation>
    </message>
    <message>
        <source>Show the part of the map that was shown before</source>
        <translation>前に表示していた範囲を表示します</translation>
    </message>
    <message>
        <source>Show the selected features on the map</source>
        <translation>選択した地物を地図に表示します</translation>
    </message>
    <message>
        <source>Show the view from which you went back</source>
        <translation>戻る前に表示していた範囲を表示します</translation>
    </message>
    <message>
        <source>Shows only the rows that contain all these words; F3 goes to the next of them</source>
        <translation>これらの語をすべて含む行だけを表示します。F3 で次の行に移動します</translation>
    </message>
    <message>
        <source>Some data have no known place. --crs tells their coordinate system.</source>
        <translation>一部のデータの位置が不明です。座標系は --crs で指定できます。</translation>
    </message>
    <message>
        <source>Some of the rows below have no numbers there. They are left out.</source>
        <translation>数値がない行があります。それらの行は除外されます。</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>並べ替えています...</translation>
    </message>
    <message>
        <source>Store the map on a PostgreSQL server and continue with it there</source>
        <translation>地図を PostgreSQL サーバーに保存し、そこで作業を続けます</translation>
    </message>
    <message>
        <source>Table &amp;Columns...</source>
        <translation>表の列(&amp;C)...</translation>
    </message>
    <message>
        <source>Table Columns</source>
        <translation>表の列</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>表</translation>
    </message>
    <message>
        <source>Tables on the server</source>
        <translation>サーバー上のテーブル</translation>
    </message>
    <message>
        <source>Tables with geometries</source>
        <translation>ジオメトリを持つテーブル</translation>
    </message>
    <message>
        <source>Take all rights on the map back from ROLE.</source>
        <translation>ROLE から地図に対するすべての権限を取り消します。</translation>
    </message>
    <message>
        <source>Take the server off this list; its maps stay</source>
        <translation>サーバーをこの一覧から外します。地図は残ります</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; can be neither replaced nor removed, because more would be lost: ^2. Move that away first.</source>
        <translation>地図「^1」は置き換えも削除もできません。ほかのものも失われるためです: ^2。先にそれを別の場所へ移してください。</translation>
    </message>
    <message>
        <source>The server has not answered yet. If you close this now, you will not learn whether it was done. Close it?</source>
        <translation>サーバーからの応答がまだありません。今閉じると、実行されたかどうかは分かりません。閉じますか?</translation>
    </message>
    <message>
        <source>There is no secure connection to the server of &quot;^1&quot;: ^2</source>
        <translation>「^1」のサーバーに安全に接続できません: ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; answers with more than fits into memory. The connection was ended.</source>
        <translation>「^1」のサーバーの応答が長すぎてメモリーに収まりません。接続を終了しました。</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; shares one connection between several programs. Connect without the program that does so, or let it pool sessions: ^2</source>
        <translation>「^1」のサーバーは、1 つの接続を複数のプログラムで共有しています。共有を行うプログラムを介さずに接続するか、セッション単位の共有に設定してください: ^2</translation>
    </message>
    <message>
        <source>The name &quot;^1&quot; is too long for a map on a server.</source>
        <translation>名前「^1」は、サーバー上の地図の名前として長すぎます。</translation>
    </message>
    <message>
        <source>You may not read the map &quot;^1&quot;. Its owner can give you the right to.</source>
        <translation>地図「^1」を読み取る権限がありません。所有者が権限を与えることができます。</translation>
    </message>
    <message>
        <source>Who may use the map &quot;^1&quot; can only be changed by its owner, ^2.</source>
        <translation>地図「^1」の利用者を変更できるのは、所有者の ^2 だけです。</translation>
    </message>
    <message>
        <source>The column of tables with geometries as text (WKT).</source>
        <translation>ジオメトリをテキスト (WKT) で持つ表の列。</translation>
    </message>
    <message>
        <source>The columns of tables with the coordinates; without this they are guessed.</source>
        <translation>表の座標の列。指定しない場合は推定されます。</translation>
    </message>
    <message>
        <source>The connection to the server of &quot;^1&quot; was lost: ^2. What was not stored can be tried again.</source>
        <translation>「^1」のサーバーとの接続が切れました: ^2。保存されなかった変更は、もう一度試すことができます。</translation>
    </message>
    <message>
        <source>The coordinate system of the data that name none, such as EPSG:25832; data that name one keep it. Without this option, degrees are assumed where they fit, else the map's system.</source>
        <translation>座標系が指定されていないデータの座標系 (例: EPSG:25832)。指定のあるデータには適用されません。このオプションがない場合、度として合えば度、そうでなければ地図の座標系とみなします。</translation>
    </message>
    <message>
        <source>The coordinate system of the map. Without this option, a map keeps its own; for a new map the data of the largest area decide.</source>
        <translation>地図の座標系。このオプションがない場合、既存の地図の座標系は変わらず、新しい地図では最も広い範囲のデータで決まります。</translation>
    </message>
    <message>
        <source>The coordinate system that was chosen for &quot;%1&quot; is not known: &quot;%2&quot;.</source>
        <translation>「%1」に選択された座標系「%2」は不明です。</translation>
    </message>
    <message>
        <source>The coordinates in the data stay as they are; the system says where they lie.</source>
        <translation>データの座標はそのままです。座標系はその位置を示します。</translation>
    </message>
    <message>
        <source>The data of these layers are in no folder of this computer.</source>
        <translation>これらのレイヤーのデータは、このコンピューターのフォルダーにはありません。</translation>
    </message>
    <message>
        <source>The features of this layer have no attributes.</source>
        <translation>このレイヤーの地物には属性がありません。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be opened.</source>
        <translation>フォルダー「%1」を開けません。</translation>
    </message>
    <message>
        <source>The guide &quot;%1&quot; cannot be read: %2</source>
        <translation>ガイド「%1」を読み込めません: %2</translation>
    </message>
    <message>
        <source>The guide is not installed.</source>
        <translation>ガイドがインストールされていません。</translation>
    </message>
    <message>
        <source>The layer is not selectable on the map.</source>
        <translation>このレイヤーは地図上で選択できません。</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; belongs to %2. Choose another name.</source>
        <translation>地図「%1」の所有者は %2 です。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; is open by %2 and cannot be replaced now.</source>
        <translation>地図「%1」は %2 が開いているため、今は置き換えられません。</translation>
    </message>
    <message>
        <source>The map does not show these features.</source>
        <translation>これらの地物は地図に表示されていません。</translation>
    </message>
    <message>
        <source>The map has no coordinate system yet; click to choose one.</source>
        <translation>地図にはまだ座標系がありません。クリックして選択してください。</translation>
    </message>
    <message>
        <source>The map has no features of the chosen layers.</source>
        <translation>地図に選択されたレイヤーの地物はありません。</translation>
    </message>
    <message>
        <source>The map has no layer with data.</source>
        <translation>データのあるレイヤーが地図にありません。</translation>
    </message>
    <message>
        <source>The map is read-only. You can look at everything, but change nothing.</source>
        <translation>この地図は読み取り専用です。すべて閲覧できますが、変更はできません。</translation>
    </message>
    <message>
        <source>The map, such as &quot;postgresql:///maps?schema=Town&quot;.</source>
        <translation>地図。例:「postgresql:///maps?schema=Town」</translation>
    </message>
    <message>
        <source>The place &quot;^1&quot; contains a password. Leave it out: it belongs in PostgreSQL&apos;s password file, or you are asked for it.</source>
        <translation>場所「^1」にパスワードが含まれています。パスワードは PostgreSQL のパスワードファイルに書くか、求められたときに入力してください。</translation>
    </message>
    <message>
        <source>The place &quot;^1&quot; contains the setting &quot;^2&quot;, which may only be in a service file of PostgreSQL.</source>
        <translation>場所「^1」に設定「^2」が含まれていますが、この設定は PostgreSQL のサービスファイルにのみ書けます。</translation>
    </message>
    <message>
        <source>The rows stay as they were. %1</source>
        <translation>行は元のままです。%1</translation>
    </message>
    <message>
        <source>The scale of the map. Type another one, such as %1, and press Enter.</source>
        <translation>地図の縮尺です。%1 のように別の縮尺を入力して Enter キーを押します。</translation>
    </message>
    <message>
        <source>The server did not accept the password.</source>
        <translation>サーバーはパスワードを受け付けませんでした。</translation>
    </message>
    <message>
        <source>The server does not allow this to you on &quot;^1&quot;: ^2</source>
        <translation>サーバーは「^1」でのこの操作を許可していません: ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; cannot be reached: ^2</source>
        <translation>「^1」のサーバーに接続できません: ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; does not answer. What was not stored can be tried again.</source>
        <translation>「^1」のサーバーが応答しません。保存されなかった変更は、もう一度試すことができます。</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; has not enough memory for this.</source>
        <translation>「^1」のサーバーのメモリが不足しています。</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; refused the user or the password: ^2</source>
        <translation>「^1」のサーバーがユーザーまたはパスワードを拒否しました: ^2</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; runs PostgreSQL ^2. Version 13 or a newer one is needed.</source>
        <translation>「^1」のサーバーは PostgreSQL ^2 です。バージョン 13 以降が必要です。</translation>
    </message>
    <message>
        <source>The server of &quot;^1&quot; takes no more connections at present. Try again in a moment.</source>
        <translation>「^1」のサーバーは現在、これ以上の接続を受け付けません。しばらくしてからもう一度試してください。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is open: ^2. Try again when it is closed there.</source>
        <translation>地図「^1」は開かれています: ^2。そこで閉じられてからもう一度試してください。</translation>
    </message>
    <message>
        <source>There are no PostGIS tables on this server that you may read.</source>
        <translation>このサーバーには、閲覧できる PostGIS テーブルがありません。</translation>
    </message>
    <message>
        <source>There are no maps on this server yet that you may open.</source>
        <translation>このサーバーには、開くことのできる地図がまだありません。</translation>
    </message>
    <message>
        <source>There is a map &quot;%1&quot; on the server already. Replace it, for everybody?</source>
        <translation>サーバーには既に地図「%1」があります。全員に対して置き換えますか?</translation>
    </message>
    <message>
        <source>There is no map &quot;^1&quot; on this server.</source>
        <translation>このサーバーに地図「^1」はありません。</translation>
    </message>
    <message>
        <source>The map: a file, or a place on a server.</source>
        <translation>地図: ファイル、またはサーバー上の場所。</translation>
    </message>
    <message>
        <source>--repair is for map files; a map on a server is only checked.</source>
        <translation>--repair は地図ファイル用です。サーバー上の地図は検査だけ行われます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was copied to &quot;%2&quot;.</source>
        <translation>「%1」を「%2」にコピーしました。</translation>
    </message>
    <message>
        <source>Replace the map that is at the new place, unless it is open anywhere.</source>
        <translation>コピー先にある地図を置き換えます。ただし、どこかで開かれている場合を除きます。</translation>
    </message>
    <message>
        <source>Where the copy is made: a file, or a place on a server.</source>
        <translation>コピー先: ファイル、またはサーバー上の場所。</translation>
    </message>
    <message>
        <source>Copy a map with all its layers, groups, schemes and themes: a file to a server, a map on a server to a file, or one to another of the same kind. The data of the layers stay where they are. A place on a server is written as postgresql://SERVER/DATABASE?schema=MAP.
Exit code: 0 the copy is complete, 1 there is none, 2 the command was not understood.</source>
        <translation>地図をすべてのレイヤー、グループ、スキーム、テーマとともにコピーします: ファイルからサーバーへ、サーバー上の地図からファイルへ、または同じ種類の間で。レイヤーのデータは元の場所に残ります。サーバー上の場所は postgresql://サーバー/データベース?schema=地図 と書きます。
終了コード: 0 コピーは完全、1 コピーはない、2 コマンドを理解できない。</translation>
    </message>
    <message>
        <source>The layers of &quot;^1&quot; are kept in a way that cannot be copied.</source>
        <translation>「^1」のレイヤーは、コピーできない方法で保存されています。</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be copied because values do not fit their columns: ^2. In a map file, &quot;orvane check --repair&quot; replaces such values.</source>
        <translation>列に合わない値があるため、「^1」をコピーできません: ^2。地図ファイルでは「orvane check --repair」がそのような値を置き換えます。</translation>
    </message>
    <message>
        <source>&quot;^1&quot; was not copied because rows of the table &quot;^2&quot; are missing in the copy.</source>
        <translation>コピーにテーブル「^2」の行が足りないため、「^1」はコピーされませんでした。</translation>
    </message>
    <message>
        <source>&quot;^1&quot; cannot be copied because rows of the table &quot;^2&quot; refer to rows that are missing. In a map file, &quot;orvane check --repair&quot; removes such rows.</source>
        <translation>テーブル「^2」の行が存在しない行を参照しているため、「^1」をコピーできません。地図ファイルでは「orvane check --repair」がそのような行を削除します。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be created because the server has something of that name already.</source>
        <translation>その名前のものがすでにサーバーにあるため、地図「^1」を作成できません。</translation>
    </message>
    <message>
        <source>Changes to &quot;^1&quot; cannot be undone because your role may not make temporary tables in its database.</source>
        <translation>データベースに一時テーブルを作成する権限がロールにないため、「^1」への変更は元に戻せません。</translation>
    </message>
    <message>
        <source>It is not known what the last operation changed in &quot;^1&quot;; it cannot be undone.</source>
        <translation>最後の操作が「^1」の何を変更したのか分からないため、元に戻せません。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: it contains &quot;^2&quot;, which does not belong in a map.</source>
        <translation>地図「^1」は正しくありません: 地図に属さない「^2」が含まれています。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; is joined with others outside of it.</source>
        <translation>地図「^1」は正しくありません: テーブル「^2」が地図の外のテーブルと関連付けられています。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; lacks a trigger that tells others what has changed.</source>
        <translation>地図「^1」は正しくありません: 変更内容をほかの利用者に知らせるトリガーがテーブル「^2」にありません。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: everybody may create objects in the schema &quot;^2&quot;.</source>
        <translation>地図「^1」は正しくありません: スキーマ「^2」に誰でもオブジェクトを作成できます。</translation>
    </message>
    <message>
        <source>The source cannot be read.</source>
        <translation>データを読み込めません。</translation>
    </message>
    <message>
        <source>The source names none; the coordinates are taken as those of the map.</source>
        <translation>データに指定がありません。座標は地図のものとみなします。</translation>
    </message>
    <message>
        <source>The source says so.</source>
        <translation>データの指定によります。</translation>
    </message>
    <message>
        <source>The statement ^2 cannot be run on &quot;^1&quot; by itself.</source>
        <translation>文 ^2 を「^1」で単独で実行することはできません。</translation>
    </message>
    <message>
        <source>The table &quot;%1&quot; of &quot;%2&quot; lacks the column &quot;%3&quot; with coordinates.</source>
        <translation>「%2」の表「%1」に座標の列「%3」がありません。</translation>
    </message>
    <message>
        <source>There is already a theme &quot;%1&quot;.</source>
        <translation>テーマ「%1」は既にあります。</translation>
    </message>
    <message>
        <source>There is no earlier view.</source>
        <translation>これより前の表示範囲はありません。</translation>
    </message>
    <message>
        <source>There is no later view.</source>
        <translation>これより後の表示範囲はありません。</translation>
    </message>
    <message>
        <source>There is no table &quot;%1&quot; with geometries on the server that you may read.</source>
        <translation>サーバーには、閲覧できるジオメトリ付きのテーブル「%1」がありません。</translation>
    </message>
    <message>
        <source>These layers are in too many different folders.</source>
        <translation>これらのレイヤーは多くのフォルダーに分かれています。</translation>
    </message>
    <message>
        <source>This is a folder: choose a file in it, or drop the folder on the map to add all its data.</source>
        <translation>これはフォルダーです。中のファイルを選択するか、フォルダーを地図にドロップしてすべてのデータを追加してください。</translation>
    </message>
    <message>
        <source>This is not a known coordinate system.</source>
        <translation>既知の座標系ではありません。</translation>
    </message>
    <message>
        <source>This layer has no data, and so no attributes.</source>
        <translation>このレイヤーにはデータがないため、属性もありません。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Where are the coordinates of the rows?</source>
        <translation>各行の座標はどこにありますか?</translation>
    </message>
    <message>
        <source>Where the data of %1 lie is not known: they could not be read to the end.</source>
        <translation>%1 のデータの位置は不明です。最後まで読み込めませんでした。</translation>
    </message>
    <message>
        <source>Write JSON, for scripts.</source>
        <translation>スクリプト用に JSON で出力します。</translation>
    </message>
    <message>
        <source>X and Y are the same column.</source>
        <translation>X と Y が同じ列です。</translation>
    </message>
    <message>
        <source>Yellow to red</source>
        <translation>黄から赤</translation>
    </message>
    <message>
        <source>Yellow to violet</source>
        <translation>黄から紫</translation>
    </message>
    <message>
        <source>You may</source>
        <translation>できること</translation>
    </message>
    <message>
        <source>You may read this map, but not change it. Its owner can give you the right to edit it.</source>
        <translation>この地図は閲覧できますが、変更はできません。編集の権限は所有者から得られます。</translation>
    </message>
    <message>
        <source>Zoom to &amp;Layer</source>
        <translation>レイヤーの範囲にズーム(&amp;L)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation>選択した地物にズーム(&amp;S)</translation>
    </message>
    <message>
        <source>Zoom to a rectangle that you draw; with every other tool, hold Shift and drag</source>
        <translation>描いた矩形にズームします。ほかのツールでは Shift キーを押しながらドラッグします</translation>
    </message>
    <message>
        <source>compared: %1</source>
        <translation>比較した項目: %1</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>In Your Own Order</source>
        <translation>自分の順序</translation>
    </message>
    <message>
        <source>It does not say which properties it holds.</source>
        <translation>どのプロパティを含むかが書かれていません。</translation>
    </message>
    <message>
        <source>It gets the present values of the layers. The current scheme stays current.</source>
        <translation>レイヤーの今の値が保存されます。現在のスキームは変わりません。</translation>
    </message>
    <message>
        <source>Last saved</source>
        <translation>最終保存</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下へ(&amp;W)</translation>
    </message>
    <message>
        <source>New Scheme</source>
        <translation>新しいスキーム</translation>
    </message>
    <message>
        <source>Reorder Schemes</source>
        <translation>スキームの並べ替え</translation>
    </message>
    <message>
        <source>S&amp;ort by Name</source>
        <translation>名前順に並べる(&amp;O)</translation>
    </message>
    <message>
        <source>Sort Schemes by Name</source>
        <translation>スキームの名前順の並べ替え</translation>
    </message>
    <message>
        <source>Sort &amp;Table</source>
        <translation>表の並べ替え(&amp;T)</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was applied when the map was opened.</source>
        <translation>地図を開いたときにスキーム「%1」を適用しました。</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was applied when the project was opened.</source>
        <translation>プロジェクトを開いたときにスキーム「%1」を適用しました。</translation>
    </message>
    <message>
        <source>The scheme holds:</source>
        <translation>スキームの内容:</translation>
    </message>
    <message>
        <source>The table is sorted by a column. Go back to your own order first.</source>
        <translation>表は列で並べ替えられています。先に自分の順序に戻してください。</translation>
    </message>
    <message>
        <source>conditions are not supported for tables on a server</source>
        <translation>サーバー上のテーブルでは条件を使用できません</translation>
    </message>
    <message>
        <source>it lacks a column with coordinates</source>
        <translation>座標の列がありません</translation>
    </message>
    <message>
        <source>its points are numbers in a table</source>
        <translation>点が表の数値として保存されています</translation>
    </message>
    <message>
        <source>its primary key is not one whole number</source>
        <translation>主キーが一つの整数ではありません</translation>
    </message>
    <message>
        <source>no data</source>
        <translation>データなし</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>記載なし</translation>
    </message>
    <message>
        <source>the two schemes hold nothing in common</source>
        <translation>2つのスキームに共通する項目はありません</translation>
    </message>
    <message>
        <source>--time-limit needs a whole number of seconds.</source>
        <translation>--time-limit には秒数を整数で指定してください。</translation>
    </message>
    <message>
        <source>... and %1 more values.</source>
        <translation>... ほか%1個の値。</translation>
    </message>
    <message>
        <source>... and %1 more.</source>
        <translation>... ほか %1 件。</translation>
    </message>
    <message>
        <source>1:%1</source>
        <translation>1:%1</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Orvane %1&lt;/h3&gt;&lt;p&gt;A small desktop map program, the host of the Orvane layer control.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Orvane %1&lt;/h3&gt;&lt;p&gt;Orvane レイヤーコントロールのホストとなる、小さなデスクトップ地図プログラムです。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>A layer cannot be created in the file &quot;%1&quot;.</source>
        <translation>ファイル「%1」にレイヤを作成できません。</translation>
    </message>
    <message>
        <source>A layer from map &amp;data</source>
        <translation>地図データのレイヤ(&amp;D)</translation>
    </message>
    <message>
        <source>A list has an entry with the ID %1.</source>
        <translation>一覧に ID %1 の項目があります。</translation>
    </message>
    <message>
        <source>A list has the ID %1 twice.</source>
        <translation>一覧に ID %1 が二つあります。</translation>
    </message>
    <message>
        <source>A longer operation on &quot;^1&quot; is not finished yet. Wait until it is, or cancel it.</source>
        <translation>「^1」の長い操作がまだ終わっていません。終わるまで待つか、キャンセルしてください。</translation>
    </message>
    <message>
        <source>A picture of %1 by %2 pixels is too large.</source>
        <translation>%1 × %2 ピクセルの画像は大きすぎます。</translation>
    </message>
    <message>
        <source>A row of &quot;^1&quot; was changed without beginning an edit.</source>
        <translation>編集を開始せずに「^1」の行が変更されました。</translation>
    </message>
    <message>
        <source>A row of &quot;^1&quot; was sought before an index was chosen.</source>
        <translation>インデックスを選択する前に「^1」の行が検索されました。</translation>
    </message>
    <message>
        <source>A statement on &quot;^1&quot; was given another number of values than it takes.</source>
        <translation>「^1」に対する文に渡された値の個数が正しくありません。</translation>
    </message>
    <message>
        <source>A temporary copy of &quot;%1&quot; cannot be made in the folder &quot;%2&quot;. Make room there, or set TMPDIR to another folder.</source>
        <translation>フォルダー「%2」に「%1」の一時コピーを作成できません。空き容量を増やすか、TMPDIR に別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>A whole number from %1 to %2</source>
        <translation>%1 から %2 までの整数</translation>
    </message>
    <message>
        <source>A&amp;ttribute:</source>
        <translation>属性(&amp;T):</translation>
    </message>
    <message>
        <source>A5 to A0, Letter, Legal, Tabloid, 200x150mm or 1600x900px. The default is A4.</source>
        <translation>A5～A0、Letter、Legal、Tabloid、200x150mm、1600x900px など。省略時は A4。</translation>
    </message>
    <message>
        <source>About Orvane</source>
        <translation>Orvane について</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>このプログラムについて</translation>
    </message>
    <message>
        <source>Add map data from files to the map</source>
        <translation>ファイルの地図データを地図に追加します</translation>
    </message>
    <message>
        <source>Adding layers to the map</source>
        <translation>地図にレイヤーを追加しています</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>すべてのプロパティ</translation>
    </message>
    <message>
        <source>All schemes of this map were saved for new maps.</source>
        <translation>この地図のすべてのスキームを、新しい地図用に保存しました。</translation>
    </message>
    <message>
        <source>All schemes of this project were saved for new projects.</source>
        <translation>このプロジェクトのすべてのスキームを、新しいプロジェクト用に保存しました。</translation>
    </message>
    <message>
        <source>An &amp;empty layer</source>
        <translation>空のレイヤ(&amp;E)</translation>
    </message>
    <message>
        <source>An argument is missing.</source>
        <translation>引数が足りません。</translation>
    </message>
    <message>
        <source>An earlier change to the map &quot;^1&quot; failed and cannot be undone at present: ^2. Try again, or open the map again.</source>
        <translation>地図「^1」に対する以前の変更が失敗し、現在は元に戻せません: ^2。もう一度試すか、地図を開き直してください。</translation>
    </message>
    <message>
        <source>An empty value cannot be stored in &quot;^1&quot;.</source>
        <translation>空の値は「^1」に保存できません。</translation>
    </message>
    <message>
        <source>An unknown error has occurred.</source>
        <translation>不明なエラーが発生しました。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Area: %1, perimeter: %2</source>
        <translation>面積: %1、周長: %2</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>面</translation>
    </message>
    <message>
        <source>As a picture: %1 × %2 pixels</source>
        <translation>画像として: %1 × %2 ピクセル</translation>
    </message>
    <message>
        <source>At the scale &amp;1:</source>
        <translation>縮尺(&amp;1) 1:</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Automatic (%1)</source>
        <translation>自動 (%1)</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>参照(&amp;R)...</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>background</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cased lines</source>
        <translation>縁取り線</translation>
    </message>
    <message>
        <source>Cased lines, labelled</source>
        <translation>縁取り線、ラベル付き</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>「%1」の変更</translation>
    </message>
    <message>
        <source>Change %1 Layers</source>
        <translation>%1個のレイヤーの変更</translation>
    </message>
    <message>
        <source>Change Code of &quot;%1&quot;</source>
        <translation>「%1」のコードの変更</translation>
    </message>
    <message>
        <source>Changed Elsewhere</source>
        <translation>別の場所で変更されました</translation>
    </message>
    <message>
        <source>Changes in the layer control that were not applied have been dropped.</source>
        <translation>レイヤーコントロールで適用されていない変更は破棄されました。</translation>
    </message>
    <message>
        <source>Changes made in one window are saved immediately and appear in the other within a second.</source>
        <translation>一方のウィンドウでの変更はすぐに保存され、1秒以内にもう一方にも表示されます。</translation>
    </message>
    <message>
        <source>Check a map for damage, invalid values, broken references and missing data.
Exit code: 0 no problems, 1 problems found, 2 the command was not understood.</source>
        <translation>地図の問題 (破損、無効な値、参照先のない行、見つからないデータ) を調べます。
終了コード: 0 問題なし、1 問題あり、2 コマンドが正しくありません。</translation>
    </message>
    <message>
        <source>Choose the attributes that label and colour the features of a layer</source>
        <translation>レイヤーの地物にラベルと色を付ける属性を選びます</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>階級</translation>
    </message>
    <message>
        <source>Click a feature with the Identify tool.</source>
        <translation>「属性照会」ツールで地物をクリックしてください。</translation>
    </message>
    <message>
        <source>Click to set a vertex, double-click to end.</source>
        <translation>クリックで頂点を置き、ダブルクリックで終了します。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>コード:</translation>
    </message>
    <message>
        <source>Com&amp;pare</source>
        <translation>比較(&amp;P)</translation>
    </message>
    <message>
        <source>Comparing Schemes</source>
        <translation>スキームの比較</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>%1のコピー</translation>
    </message>
    <message>
        <source>Create &quot;%1&quot;</source>
        <translation>「%1」の作成</translation>
    </message>
    <message>
        <source>Create Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」の作成</translation>
    </message>
    <message>
        <source>Create a new map file</source>
        <translation>新しい地図ファイルを作成します</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>ユーザー定義のサイズ</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>複製(&amp;U)...</translation>
    </message>
    <message>
        <source>Dash-dot line</source>
        <translation>一点鎖線</translation>
    </message>
    <message>
        <source>Dash-dot-dot line</source>
        <translation>二点鎖線</translation>
    </message>
    <message>
        <source>Dashed line</source>
        <translation>破線</translation>
    </message>
    <message>
        <source>Data f&amp;ile:</source>
        <translation>データファイル(&amp;I):</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>「%1」の削除</translation>
    </message>
    <message>
        <source>Delete %1 Layers</source>
        <translation>%1個のレイヤーの削除</translation>
    </message>
    <message>
        <source>Delete %1 layers?</source>
        <translation>%1個のレイヤーを削除しますか?</translation>
    </message>
    <message>
        <source>Delete %1 Schemes</source>
        <translation>%1個のスキームの削除</translation>
    </message>
    <message>
        <source>Delete %1 schemes? The layers stay as they are.</source>
        <translation>%1個のスキームを削除しますか?レイヤーは今のまま残ります。</translation>
    </message>
    <message>
        <source>Delete Layer</source>
        <translation>レイヤーの削除</translation>
    </message>
    <message>
        <source>Delete Layers</source>
        <translation>レイヤーの削除</translation>
    </message>
    <message>
        <source>Delete Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」の削除</translation>
    </message>
    <message>
        <source>Delete Schemes</source>
        <translation>スキームの削除</translation>
    </message>
    <message>
        <source>Delete the scheme &quot;%1&quot;? The layers stay as they are.</source>
        <translation>スキーム「%1」を削除しますか?レイヤーは今のまま残ります。</translation>
    </message>
    <message>
        <source>Delete Theme</source>
        <translation>テーマを削除</translation>
    </message>
    <message>
        <source>Delete the layer &quot;%1&quot;?</source>
        <translation>レイヤー「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Delete the theme &quot;%1&quot;? Its layers stay in the map.</source>
        <translation>テーマ「%1」を削除しますか? レイヤは地図に残ります。</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>相違点</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>相違点: %1</translation>
    </message>
    <message>
        <source>Differences: %1 of %2</source>
        <translation>相違点: %1 / %2</translation>
    </message>
    <message>
        <source>display mode</source>
        <translation>表示モード</translation>
    </message>
    <message>
        <source>Display mode</source>
        <translation>表示モード</translation>
    </message>
    <message>
        <source>dont care</source>
        <translation>指定なし</translation>
    </message>
    <message>
        <source>Dots per inch. The default is 300, or 96 for a size in pixels.</source>
        <translation>1 インチあたりのドット数。省略時は 300、ピクセル指定では 96。</translation>
    </message>
    <message>
        <source>Dotted line</source>
        <translation>点線</translation>
    </message>
    <message>
        <source>Drag a feature to move it.</source>
        <translation>地物をドラッグして移動します。</translation>
    </message>
    <message>
        <source>Drag the feature of %1 to move it.</source>
        <translation>%1 の地物をドラッグして移動します。</translation>
    </message>
    <message>
        <source>Drag the map, zoom with the wheel</source>
        <translation>地図をドラッグで移動し、ホイールでズームします</translation>
    </message>
    <message>
        <source>Draw a map as PDF, SVG or PNG. The map file is only read.
Exit code: 0 all was drawn, 1 something was not, 2 the command was not understood.</source>
        <translation>地図を PDF、SVG、PNG として描きます。地図ファイルは読むだけです。
終了コード: 0 すべて描画、1 描けないものあり、2 コマンドが正しくありません。</translation>
    </message>
    <message>
        <source>Draw at the scale 1:N around the middle of the map.</source>
        <translation>地図の中央を縮尺 1:N で描きます。</translation>
    </message>
    <message>
        <source>draw priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Draw the layers as this scheme has them; the map file stays as it is.</source>
        <translation>このスキームのとおりにレイヤーを描きます。地図ファイルは変わりません。</translation>
    </message>
    <message>
        <source>Drawing the map</source>
        <translation>地図を描いています</translation>
    </message>
    <message>
        <source>Drawing...</source>
        <translation>描画中...</translation>
    </message>
    <message>
        <source>Others who have the map open: %1</source>
        <translation>この地図を開いている他の人: %1</translation>
    </message>
    <message>
        <source>Connection lost, trying again</source>
        <translation>接続が切れました。再接続を試みます</translation>
    </message>
    <message>
        <source>The server of the map cannot be reached. What is not applied stays here.</source>
        <translation>地図のサーバーに接続できません。適用していない内容はここに残ります。</translation>
    </message>
    <message>
        <source>Connecting again...</source>
        <translation>再接続しています...</translation>
    </message>
    <message>
        <source>The server of the map is being contacted again.</source>
        <translation>地図のサーバーにもう一度接続しています。</translation>
    </message>
    <message>
        <source>Try Now</source>
        <translation>今すぐ試す</translation>
    </message>
    <message>
        <source>Connect to the server of the map now</source>
        <translation>今すぐ地図のサーバーに接続する</translation>
    </message>
    <message>
        <source>Duplicate Scheme</source>
        <translation>スキームの複製</translation>
    </message>
    <message>
        <source>Duplicate Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」の複製</translation>
    </message>
    <message>
        <source>Edits the properties of many layers at once, and keeps them in schemes.</source>
        <translation>多数のレイヤーのプロパティを一度に編集し、スキームに保存します。</translation>
    </message>
    <message>
        <source>End the check of the file after that time; 0 for no limit. The default is 600.</source>
        <translation>この時間が過ぎたらファイルの検査を終えます。0 は制限なしです。既定値は 600 です。</translation>
    </message>
    <message>
        <source>enquirable</source>
        <translation>照会可能</translation>
    </message>
    <message>
        <source>Enquirable</source>
        <translation>照会可能</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message>
        <source>Equal counts</source>
        <translation>等量</translation>
    </message>
    <message>
        <source>Equal steps</source>
        <translation>等間隔</translation>
    </message>
    <message>
        <source>Export Map</source>
        <translation>地図の書き出し</translation>
    </message>
    <message>
        <source>Export Map Theme &quot;%1&quot;</source>
        <translation>地図テーマ「%1」を書き出し</translation>
    </message>
    <message>
        <source>Export Scheme</source>
        <translation>スキームを書き出し</translation>
    </message>
    <message>
        <source>Export Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」の書き出し</translation>
    </message>
    <message>
        <source>Export Scheme as Map Theme</source>
        <translation>スキームを地図テーマとして書き出し</translation>
    </message>
    <message>
        <source>Export Scheme as Map Theme...</source>
        <translation>スキームを地図テーマとして書き出し...</translation>
    </message>
    <message>
        <source>Export Scheme...</source>
        <translation>スキームを書き出し...</translation>
    </message>
    <message>
        <source>Extent of the &amp;window, fitted to the page</source>
        <translation>ウィンドウの表示範囲をページに合わせる(&amp;W)</translation>
    </message>
    <message>
        <source>Feature %1</source>
        <translation>地物 %1</translation>
    </message>
    <message>
        <source>Feature Attributes</source>
        <translation>地物の属性</translation>
    </message>
    <message>
        <source>Features found: %1</source>
        <translation>見つかった地物: %1</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>フィルタ(&amp;L):</translation>
    </message>
    <message>
        <source>Files, or folders with files in them.</source>
        <translation>ファイル、またはファイルの入ったフォルダー。</translation>
    </message>
    <message>
        <source>fill colour</source>
        <translation>塗りの色</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>塗りの色</translation>
    </message>
    <message>
        <source>fill style</source>
        <translation>塗りパターン</translation>
    </message>
    <message>
        <source>Fill style</source>
        <translation>塗りパターン</translation>
    </message>
    <message>
        <source>Find Missing Data</source>
        <translation>見つからないデータの検索</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>フラグ</translation>
    </message>
    <message>
        <source>From</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>GeoPackage</source>
        <translation>GeoPackage</translation>
    </message>
    <message>
        <source>GeoPackage &amp;file:</source>
        <translation>GeoPackage ファイル(&amp;F):</translation>
    </message>
    <message>
        <source>GeoPackages (*.gpkg)</source>
        <translation>GeoPackage (*.gpkg)</translation>
    </message>
    <message>
        <source>Give the layers of the map the chosen values of the column &quot;To&quot;.</source>
        <translation>選択した「変更後」列の値を地図のレイヤーに設定します。</translation>
    </message>
    <message>
        <source>Graduated</source>
        <translation>段階区分</translation>
    </message>
    <message>
        <source>Graduated, labelled</source>
        <translation>段階区分、ラベル付き</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Highlight features of hitable layers under the pointer with any tool</source>
        <translation>どのツールでも、クリック可能なレイヤーのポインター下の地物を強調します</translation>
    </message>
    <message>
        <source>Hitable</source>
        <translation>クリック可能</translation>
    </message>
    <message>
        <source>Import Map Theme &quot;%1&quot;</source>
        <translation>地図テーマ「%1」を読み込み</translation>
    </message>
    <message>
        <source>Import Map Themes</source>
        <translation>地図テーマを読み込み</translation>
    </message>
    <message>
        <source>Import Map Themes...</source>
        <translation>地図テーマを読み込み...</translation>
    </message>
    <message>
        <source>hitable</source>
        <translation>クリック可能</translation>
    </message>
    <message>
        <source>Import Scheme</source>
        <translation>スキームを読み込み</translation>
    </message>
    <message>
        <source>Import Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」の読み込み</translation>
    </message>
    <message>
        <source>Import Scheme...</source>
        <translation>スキームを読み込み...</translation>
    </message>
    <message>
        <source>In the file, not in the map:</source>
        <translation>ファイルにあり、地図にないもの:</translation>
    </message>
    <message>
        <source>In the map, not in the file:</source>
        <translation>地図にあり、ファイルにないもの:</translation>
    </message>
    <message>
        <source>It contains a line that is too long.</source>
        <translation>長すぎる行が含まれています。</translation>
    </message>
    <message>
        <source>It does not contain a scheme name.</source>
        <translation>スキームの名前がありません。</translation>
    </message>
    <message>
        <source>It does not contain a valid version number.</source>
        <translation>有効なバージョン番号がありません。</translation>
    </message>
    <message>
        <source>It holds no layers.</source>
        <translation>レイヤがありません。</translation>
    </message>
    <message>
        <source>it is in none of these folders: %1</source>
        <translation>次のどのフォルダーにもありません: %1</translation>
    </message>
    <message>
        <source>It is not a layer scheme.</source>
        <translation>レイヤスキームではありません。</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>It is not valid JSON (error at byte %1).</source>
        <translation>有効な JSON ではありません (%1 バイト目でエラー)。</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>大きすぎます。</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>時間がかかりすぎます</translation>
    </message>
    <message>
        <source>it was built with the standard library &quot;%1&quot;, this program with &quot;%2&quot;</source>
        <translation>このコンポーネントは標準ライブラリ「%1」で、このプログラムは「%2」でビルドされています</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program.</source>
        <translation>このプログラムのより新しいバージョンで書き込まれています。</translation>
    </message>
    <message>
        <source>It will be removed from its groups: %1.</source>
        <translation>属しているグループから外れます: %1。</translation>
    </message>
    <message>
        <source>Its data file stays. You can undo the deletion.</source>
        <translation>データファイルは残ります。削除は元に戻せます。</translation>
    </message>
    <message>
        <source>Its saved values will be removed from the layer schemes: %1.</source>
        <translation>保存された値がレイヤースキームから削除されます: %1。</translation>
    </message>
    <message>
        <source>Labelled</source>
        <translation>ラベル付き</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot;: %2</source>
        <translation>レイヤー「%1」: %2</translation>
    </message>
    <message>
        <source>Layer %1 has no valid &quot;%2&quot;.</source>
        <translation>レイヤ %1 の「%2」が正しくありません。</translation>
    </message>
    <message>
        <source>Layer &amp;Rendering...</source>
        <translation>レイヤーの描画(&amp;R)...</translation>
    </message>
    <message>
        <source>Layer Control</source>
        <translation>レイヤーコントロール</translation>
    </message>
    <message>
        <source>Layer Rendering</source>
        <translation>レイヤーの描画</translation>
    </message>
    <message>
        <source>Layer schemes</source>
        <translation>レイヤースキーム</translation>
    </message>
    <message>
        <source>Layer schemes (*.json)</source>
        <translation>レイヤスキーム (*.json)</translation>
    </message>
    <message>
        <source>Layer schemes (*.json);;All files (*)</source>
        <translation>レイヤスキーム (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Layers added to &quot;%1&quot;: %2</source>
        <translation>「%1」に追加したレイヤー: %2</translation>
    </message>
    <message>
        <source>Layers differ from the scheme &quot;%1&quot;. Save it before switching to &quot;%2&quot;?</source>
        <translation>スキーム「%1」と異なるレイヤがあります。「%2」に切り替える前に保存しますか?</translation>
    </message>
    <message>
        <source>Layers in both the file and this map: %1</source>
        <translation>ファイルとこの地図の両方にあるレイヤ: %1</translation>
    </message>
    <message>
        <source>Layers not in the scheme &quot;%1&quot;, left unchanged: %2</source>
        <translation>スキーム「%1」にないため変更しなかったレイヤ: %2</translation>
    </message>
    <message>
        <source>Layers of the file that this map does not have: %1</source>
        <translation>この地図にないファイル内のレイヤ: %1</translation>
    </message>
    <message>
        <source>Layers of this map that the file does not have, which keep their values: %1</source>
        <translation>ファイルにないため値を変えないこの地図のレイヤ: %1</translation>
    </message>
    <message>
        <source>Layers that differ</source>
        <translation>異なるレイヤー</translation>
    </message>
    <message>
        <source>Layers that differ from the scheme &quot;%1&quot;: %2</source>
        <translation>スキーム「%1」と異なるレイヤ: %2</translation>
    </message>
    <message>
        <source>Leave the legend out.</source>
        <translation>凡例を省きます。</translation>
    </message>
    <message>
        <source>Leave the scale bar out.</source>
        <translation>縮尺バーを省きます。</translation>
    </message>
    <message>
        <source>Length: %1</source>
        <translation>長さ: %1</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>線の色</translation>
    </message>
    <message>
        <source>line colour, or its use for symbols</source>
        <translation>線の色、またはシンボルへの使用</translation>
    </message>
    <message>
        <source>line style</source>
        <translation>線種</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>線種</translation>
    </message>
    <message>
        <source>Line thickness</source>
        <translation>線の太さ</translation>
    </message>
    <message>
        <source>line width</source>
        <translation>線の幅</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>線</translation>
    </message>
    <message>
        <source>Load Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」の読み込み</translation>
    </message>
    <message>
        <source>Load Startup Schemes</source>
        <translation>起動時スキームの読み込み</translation>
    </message>
    <message>
        <source>Loading the schemes</source>
        <translation>スキームを読み込んでいます</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Looking for map data</source>
        <translation>地図データを検索しています</translation>
    </message>
    <message>
        <source>Manage Schemes</source>
        <translation>スキームの管理</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地図</translation>
    </message>
    <message>
        <source>Map Data</source>
        <translation>地図データ</translation>
    </message>
    <message>
        <source>Map File</source>
        <translation>地図ファイル</translation>
    </message>
    <message>
        <source>Map Tools</source>
        <translation>地図ツール</translation>
    </message>
    <message>
        <source>Map elements</source>
        <translation>地図の要素</translation>
    </message>
    <message>
        <source>Maps (*.orvane)</source>
        <translation>地図 (*.orvane)</translation>
    </message>
    <message>
        <source>Maps (*.orvane);;All files (*)</source>
        <translation>地図 (*.orvane);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>maximum scale</source>
        <translation>最大縮尺</translation>
    </message>
    <message>
        <source>Maximum visible scale</source>
        <translation>最大表示縮尺</translation>
    </message>
    <message>
        <source>Measure &amp;Area</source>
        <translation>面積の計測(&amp;A)</translation>
    </message>
    <message>
        <source>Measure &amp;Length</source>
        <translation>長さの計測(&amp;L)</translation>
    </message>
    <message>
        <source>Measure a line; its vertices snap to layers with snapping turned on</source>
        <translation>線を計測します。頂点はスナップ対象のレイヤーに吸着します</translation>
    </message>
    <message>
        <source>Measure an area; its vertices snap to layers with snapping turned on</source>
        <translation>面を計測します。頂点はスナップ対象のレイヤーに吸着します</translation>
    </message>
    <message>
        <source>minimum scale</source>
        <translation>最小縮尺</translation>
    </message>
    <message>
        <source>Minimum visible scale</source>
        <translation>最小表示縮尺</translation>
    </message>
    <message>
        <source>Move Feature in %1</source>
        <translation>%1 での地物の移動</translation>
    </message>
    <message>
        <source>Move a feature of an unlocked layer by dragging it</source>
        <translation>ロックされていないレイヤーの地物を別の場所へドラッグします</translation>
    </message>
    <message>
        <source>Moved a feature of %1.</source>
        <translation>%1 の地物を移動しました。</translation>
    </message>
    <message>
        <source>Moving a feature of %1. Press Esc to cancel.</source>
        <translation>%1 の地物を移動中です。Esc で中止します。</translation>
    </message>
    <message>
        <source>Moving the feature</source>
        <translation>地物を移動しています</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>New Layer</source>
        <translation>新しいレイヤ</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>新しい地図</translation>
    </message>
    <message>
        <source>New scratch layer</source>
        <translation>新しい一時レイヤー</translation>
    </message>
    <message>
        <source>New Theme</source>
        <translation>新しいテーマ</translation>
    </message>
    <message>
        <source>New layer</source>
        <translation>新しいレイヤー</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>新しい地図</translation>
    </message>
    <message>
        <source>New map - Orvane</source>
        <translation>新しい地図 - Orvane</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>No layer here.</source>
        <translation>ここにはレイヤーがありません。</translation>
    </message>
    <message>
        <source>No layer of this map is visible.</source>
        <translation>この地図には表示中のレイヤがありません。</translation>
    </message>
    <message>
        <source>No maps yet</source>
        <translation>地図はまだありません</translation>
    </message>
    <message>
        <source>No problems were found in &quot;%1&quot;.</source>
        <translation>「%1」に問題はありません。</translation>
    </message>
    <message>
        <source>No selectable feature in the rectangle.</source>
        <translation>矩形の中に選択できる地物がありません。</translation>
    </message>
    <message>
        <source>No themes yet</source>
        <translation>テーマはまだありません</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>None of the missing files is in &quot;%1&quot;.</source>
        <translation>見つからないファイルは「%1」にありません。</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準表示</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>まだ数えていません</translation>
    </message>
    <message>
        <source>not in the scheme</source>
        <translation>スキームにない</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Nothing but the map, up to the edges of the page.</source>
        <translation>地図だけを、ページの端まで描きます。</translation>
    </message>
    <message>
        <source>Nothing was repaired because the repair was not finished within %1 seconds.</source>
        <translation>修復が%1秒以内に終わらなかったため、何も修復しませんでした。</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>数値:</translation>
    </message>
    <message>
        <source>One statement at a time can be run on &quot;^1&quot;.</source>
        <translation>「^1」で一度に実行できる文は 1 つだけです。</translation>
    </message>
    <message>
        <source>Only a query can be opened for reading on &quot;^1&quot;.</source>
        <translation>「^1」で読み取り用に開けるのはクエリだけです。</translation>
    </message>
    <message>
        <source>Open &amp;Data...</source>
        <translation>データを開く(&amp;D)...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使った地図(&amp;R)</translation>
    </message>
    <message>
        <source>Open Data</source>
        <translation>データを開く</translation>
    </message>
    <message>
        <source>Open Map</source>
        <translation>地図を開く</translation>
    </message>
    <message>
        <source>Open Map Data</source>
        <translation>地図データを開く操作</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>最近使った地図を開く</translation>
    </message>
    <message>
        <source>Open a map file</source>
        <translation>地図ファイルを開きます</translation>
    </message>
    <message>
        <source>Open the layer control at startup.</source>
        <translation>起動時にレイヤーコントロールを開きます。</translation>
    </message>
    <message>
        <source>Opening map data</source>
        <translation>地図データを開いています</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>向き</translation>
    </message>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Orvane, a small desktop map program.

These commands run without a window; each has its own --help:
  orvane MAP --export FILE     draw a map as PDF, SVG or PNG
  orvane import DATA --to MAP  add data to a map
  orvane check MAP             check a map for problems
  orvane list MAP              list the layers of a map
  orvane copy MAP NEW          copy a map, also to or from a server
  orvane share PLACE           choose who may use a map on a server</source>
        <translation>Orvane は小さなデスクトップ地図プログラムです。

ウィンドウなしで次のことができます。それぞれに --help があります:
  orvane MAP --export FILE     地図を PDF、SVG、PNG として描く
  orvane import DATA --to MAP  地図にデータを追加する
  orvane check MAP             地図の問題を調べる
  orvane list MAP              地図のレイヤーを一覧表示
  orvane copy MAP NEW          地図をコピーする (サーバーとの間でも)
  orvane share PLACE           サーバー上の地図を使える人を決めます</translation>
    </message>
    <message>
        <source>Outline only</source>
        <translation>輪郭のみ</translation>
    </message>
    <message>
        <source>Pattern %1</source>
        <translation>パターン %1</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF 文書 (*.pdf)</translation>
    </message>
    <message>
        <source>Pixels: %1</source>
        <translation>ピクセル: %1</translation>
    </message>
    <message>
        <source>Please supply a non-blank name, or cancel.</source>
        <translation>空白でない名前を入力するか、キャンセルしてください。</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG 画像 (*.png)</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Print Map</source>
        <translation>地図の印刷</translation>
    </message>
    <message>
        <source>Print the map, with a preview</source>
        <translation>プレビューを見てから地図を印刷します</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>QGIS cannot set this for the layer &quot;%1&quot;: %2.</source>
        <translation>QGIS はレイヤー「%1」にこれを設定できません: %2。</translation>
    </message>
    <message>
        <source>QGIS cannot set this for the layer &quot;%1&quot;: %2. Other layers with settings that could not be set: %3.</source>
        <translation>QGIS はレイヤー「%1」にこれを設定できません: %2。設定できない項目があったほかのレイヤーの数: %3。</translation>
    </message>
    <message>
        <source>Quit Orvane</source>
        <translation>Orvane を終了します</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot; was given up because it does not end.</source>
        <translation>「%1」の読み込みは終わらないため、中止しました。</translation>
    </message>
    <message>
        <source>Reading attributes</source>
        <translation>属性を読み込んでいます</translation>
    </message>
    <message>
        <source>Reading map data</source>
        <translation>地図データを読み込んでいます</translation>
    </message>
    <message>
        <source>Reading the map</source>
        <translation>地図を読み込んでいます</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>やり直す: %1</translation>
    </message>
    <message>
        <source>Redo Layer Change</source>
        <translation>レイヤーの変更をやり直す</translation>
    </message>
    <message>
        <source>Redo the last undone change</source>
        <translation>最後に元に戻した変更をやり直します</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>「%1」の名前の変更</translation>
    </message>
    <message>
        <source>Rename Group &quot;%1&quot;</source>
        <translation>グループ「%1」の名前の変更</translation>
    </message>
    <message>
        <source>Rename Scheme</source>
        <translation>スキームの名前の変更</translation>
    </message>
    <message>
        <source>Rename Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」の名前の変更</translation>
    </message>
    <message>
        <source>Repair what can be repaired.</source>
        <translation>直せるものを直します。</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Revert Scheme</source>
        <translation>スキームを元に戻す</translation>
    </message>
    <message>
        <source>Revert the layers to the values saved in the scheme &quot;%1&quot;?</source>
        <translation>レイヤをスキーム「%1」に保存された値に戻しますか?</translation>
    </message>
    <message>
        <source>Rows of &quot;%1&quot; that refer to missing rows of &quot;%2&quot;: %3.</source>
        <translation>「%2」にないものを参照している「%1」の行: %3。</translation>
    </message>
    <message>
        <source>Rows of &quot;^1&quot; can be sought with &quot;=&quot; only, not with &quot;^2&quot;.</source>
        <translation>「^1」の行は「=」でのみ検索でき、「^2」では検索できません。</translation>
    </message>
    <message>
        <source>Rows of &quot;^1&quot; were used after they were closed.</source>
        <translation>「^1」の行が閉じられた後に使用されました。</translation>
    </message>
    <message>
        <source>S&amp;witch to It</source>
        <translation>このスキームに切り替え(&amp;W)</translation>
    </message>
    <message>
        <source>Save Schemes for New Maps</source>
        <translation>新しい地図用のスキームの保存</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>縮尺</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>スキーム</translation>
    </message>
    <message>
        <source>Schemes made of map themes: %1</source>
        <translation>地図テーマから作成したスキーム: %1</translation>
    </message>
    <message>
        <source>selectable</source>
        <translation>選択可能</translation>
    </message>
    <message>
        <source>Show the layer control inside this window</source>
        <translation>レイヤーコントロールをこのウィンドウの中に表示します</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>選択可能</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>表示対象(&amp;W):</translation>
    </message>
    <message>
        <source>snap required</source>
        <translation>スナップ必須</translation>
    </message>
    <message>
        <source>Snap required</source>
        <translation>スナップ必須</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Solid line</source>
        <translation>実線</translation>
    </message>
    <message>
        <source>style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>SVG 図形 (*.svg)</translation>
    </message>
    <message>
        <source>Save Map As</source>
        <translation>地図に名前を付けて保存</translation>
    </message>
    <message>
        <source>Save Scheme</source>
        <translation>スキームを保存</translation>
    </message>
    <message>
        <source>Save Scheme &quot;%1&quot;</source>
        <translation>スキーム「%1」の保存</translation>
    </message>
    <message>
        <source>Save the current layer settings to the scheme &quot;%1&quot;?</source>
        <translation>現在のレイヤ設定をスキーム「%1」に保存しますか?</translation>
    </message>
    <message>
        <source>Save the map to another file and continue with that file</source>
        <translation>地図を別のファイルに保存し、そのファイルで作業を続けます</translation>
    </message>
    <message>
        <source>Save this map before closing it?</source>
        <translation>この地図を閉じる前に保存しますか?</translation>
    </message>
    <message>
        <source>Scale &amp;bar</source>
        <translation>縮尺バー(&amp;B)</translation>
    </message>
    <message>
        <source>Scale 1:</source>
        <translation>縮尺 1:</translation>
    </message>
    <message>
        <source>Scheme: %1</source>
        <translation>スキーム: %1</translation>
    </message>
    <message>
        <source>Scheme: %1 *</source>
        <translation>スキーム: %1 *</translation>
    </message>
    <message>
        <source>Search a folder for the missing data files of the map</source>
        <translation>地図に足りないデータファイルをフォルダーから探します</translation>
    </message>
    <message>
        <source>Select features of selectable layers by a click or a rectangle; Ctrl adds</source>
        <translation>選択可能なレイヤーの地物をクリックまたは矩形で選択します。Ctrl で追加します</translation>
    </message>
    <message>
        <source>Selected features: %1</source>
        <translation>選択された地物: %1</translation>
    </message>
    <message>
        <source>Show and edit layers, groups and schemes</source>
        <translation>レイヤー、グループ、スキームを表示して編集します</translation>
    </message>
    <message>
        <source>Show or hide the panel with the attributes of identified features</source>
        <translation>照会した地物の属性パネルを表示または非表示にします</translation>
    </message>
    <message>
        <source>Show the attributes of features of enquirable layers</source>
        <translation>照会可能なレイヤーの地物の属性を表示します</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>Show the whole map</source>
        <translation>地図全体を表示します</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>スタイル:</translation>
    </message>
    <message>
        <source>Switch Scheme</source>
        <translation>スキームの切り替え</translation>
    </message>
    <message>
        <source>Temporary scratch layer</source>
        <translation>一時レイヤー</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>比較先(&amp;O):</translation>
    </message>
    <message>
        <source>Taking Over Values</source>
        <translation>値の反映</translation>
    </message>
    <message>
        <source>The changes cannot be kept for undoing in the folder &quot;^1&quot;: ^2.</source>
        <translation>元に戻すための変更内容をフォルダー「^1」に保存できません: ^2。</translation>
    </message>
    <message>
        <source>The changes to &quot;^1&quot; were undone after an error; begin them again.</source>
        <translation>エラーのため「^1」への変更は元に戻されました。もう一度やり直してください。</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; cannot be written.</source>
        <translation>データファイル「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; is missing.</source>
        <translation>データファイル「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>The data of this layer cannot be read.</source>
        <translation>このレイヤーのデータを読み込めません。</translation>
    </message>
    <message>
        <source>The feature was changed by another user or program and was not moved.</source>
        <translation>地物は他のユーザーまたはプログラムによって変更されたため、移動しませんでした。</translation>
    </message>
    <message>
        <source>The file to export must end in .pdf, .svg or .png.</source>
        <translation>書き出すファイルの拡張子は .pdf、.svg、.png のいずれかです。</translation>
    </message>
    <message>
        <source>The file to write; its extension .pdf, .svg or .png sets the format.</source>
        <translation>書き出すファイル。拡張子 .pdf、.svg、.png が形式を決めます。</translation>
    </message>
    <message>
        <source>The last change was stored, but it cannot be undone: %1</source>
        <translation>最後の変更は保存されましたが、元に戻すことはできません: %1</translation>
    </message>
    <message>
        <source>The last layer scheme cannot be deleted.</source>
        <translation>最後のレイヤースキームは削除できません。</translation>
    </message>
    <message>
        <source>The layer &quot;%1&quot; was removed.</source>
        <translation>レイヤー「%1」は削除されました。</translation>
    </message>
    <message>
        <source>The layer control holds changes that are not applied yet. Apply or cancel them first.</source>
        <translation>レイヤーコントロールに、まだ適用されていない変更があります。先に適用するか取り消してください。</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; has no table &quot;^2&quot; to open.</source>
        <translation>レイヤーデータベース「^1」にはテーブル「^2」がありません。</translation>
    </message>
    <message>
        <source>The layer database &quot;^1&quot; refused an operation: ^2</source>
        <translation>レイヤーデータベース「^1」が操作を拒否しました: ^2</translation>
    </message>
    <message>
        <source>The layer schemes of &quot;%1&quot; were written by a newer program and cannot be read.</source>
        <translation>「%1」のレイヤスキームは、より新しいプログラムで書き込まれたため読み取れません。</translation>
    </message>
    <message>
        <source>The layer schemes of this project are damaged and cannot be read.</source>
        <translation>このプロジェクトのレイヤースキームは壊れているため読み取れません。</translation>
    </message>
    <message>
        <source>The layer schemes of this project were written by a newer program and cannot be read.</source>
        <translation>このプロジェクトのレイヤースキームは、より新しいプログラムで書き込まれたため読み取れません。</translation>
    </message>
    <message>
        <source>The layers match the scheme &quot;%1&quot;.</source>
        <translation>レイヤはスキーム「%1」と一致しています。</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; is open in another window or program. Open it here too?</source>
        <translation>地図「%1」は別のウィンドウまたはプログラムで開かれています。ここでも開きますか?</translation>
    </message>
    <message>
        <source>The map &quot;%1&quot; no longer exists. It was removed from the list.</source>
        <translation>地図「%1」はもうありません。一覧から削除しました。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be created: ^2</source>
        <translation>地図「^1」を作成できません: ^2</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be opened because &quot;^2&quot; is not an ordinary file.</source>
        <translation>「^2」は通常のファイルではないため、地図「^1」を開けません。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; cannot be opened: ^2</source>
        <translation>地図「^1」を開けません: ^2</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; does not exist.</source>
        <translation>地図「^1」は存在しません。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is damaged. Use an earlier copy of it.</source>
        <translation>地図「^1」は破損しています。以前に保存したコピーを使用してください。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is in use by another program. Try again in a moment.</source>
        <translation>地図「^1」は別のプログラムで使用中です。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: &quot;^2&quot; is a view.</source>
        <translation>地図「^1」は正しくありません: 「^2」はビューです。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: &quot;^2&quot; is not an ordinary table.</source>
        <translation>地図「^1」は正しくありません: 「^2」は通常のテーブルではありません。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: it contains the trigger &quot;^2&quot;.</source>
        <translation>地図「^1」は正しくありません: トリガー「^2」が含まれています。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the column &quot;^2&quot; is computed.</source>
        <translation>地図「^1」は正しくありません: 列「^2」は計算列です。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the index &quot;^2&quot; is computed.</source>
        <translation>地図「^1」は正しくありません: インデックス「^2」は式によるものです。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is not sound: the table &quot;^2&quot; has a condition.</source>
        <translation>地図「^1」は正しくありません: テーブル「^2」に条件があります。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is on a server. This program was built without PostgreSQL and cannot reach it.</source>
        <translation>地図「^1」はサーバーにあります。このプログラムは PostgreSQL なしでビルドされているため、接続できません。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; is read-only and cannot be changed.</source>
        <translation>地図「^1」は読み取り専用のため、変更できません。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; was not opened because checking it takes too long.</source>
        <translation>地図「^1」は、検査に時間がかかりすぎるため開きませんでした。</translation>
    </message>
    <message>
        <source>The map &quot;^1&quot; was written by a newer version of this program.</source>
        <translation>地図「^1」は、このプログラムのより新しいバージョンで書き込まれています。</translation>
    </message>
    <message>
        <source>The map as it is</source>
        <translation>現在の地図</translation>
    </message>
    <message>
        <source>The map file &quot;%1&quot; was moved or deleted. What you change is kept only when you save the map under another name.</source>
        <translation>地図ファイル「%1」は移動または削除されました。変更は、別の名前で地図を保存した場合にのみ残ります。</translation>
    </message>
    <message>
        <source>The map file is damaged: %1.</source>
        <translation>地図ファイルが壊れています: %1。</translation>
    </message>
    <message>
        <source>The map to add to: a file, or a place on a server; it is made when there is none.</source>
        <translation>追加先の地図。ファイルまたはサーバー上の場所です。なければ作成されます。</translation>
    </message>
    <message>
        <source>The map to open: a file, or a place on a server.</source>
        <translation>開く地図。ファイルまたはサーバー上の場所です。</translation>
    </message>
    <message>
        <source>The map file was not checked to its end within %1 seconds. It may be very large, or made to keep programs busy. --time-limit sets another limit.</source>
        <translation>地図ファイルの検査は%1秒以内に終わりませんでした。ファイルが非常に大きいか、プログラムを占有するように作られている可能性があります。--time-limit で制限を変えられます。</translation>
    </message>
    <message>
        <source>The map has no features of these layers.</source>
        <translation>地図にこれらのレイヤーの地物はありません。</translation>
    </message>
    <message>
        <source>The map theme &quot;%1&quot; already exists. Replace it with the scheme?</source>
        <translation>地図テーマ「%1」はすでにあります。スキームで置き換えますか?</translation>
    </message>
    <message>
        <source>The map was changed in another window and has been reloaded.</source>
        <translation>地図が別のウィンドウで変更されたため、再読み込みしました。</translation>
    </message>
    <message>
        <source>The map was written to %1</source>
        <translation>地図を %1 に書き出しました</translation>
    </message>
    <message>
        <source>The operation on &quot;^1&quot; was cancelled.</source>
        <translation>「^1」の操作はキャンセルされました。</translation>
    </message>
    <message>
        <source>The page cannot be painted.</source>
        <translation>ページを描けません。</translation>
    </message>
    <message>
        <source>the program must make a QApplication before it loads it</source>
        <translation>プログラムは読み込む前に QApplication を作成する必要があります</translation>
    </message>
    <message>
        <source>The row to change is no longer in &quot;^1&quot;.</source>
        <translation>変更する行は「^1」にもうありません。</translation>
    </message>
    <message>
        <source>The rows of a query on &quot;^1&quot; cannot be sought or edited.</source>
        <translation>「^1」に対するクエリの行は、検索も編集もできません。</translation>
    </message>
    <message>
        <source>The rows read from &quot;^1&quot; cannot be sought by the index &quot;^2&quot;.</source>
        <translation>「^1」から読み込んだ行は、インデックス「^2」で検索できません。</translation>
    </message>
    <message>
        <source>The rows read from &quot;^1&quot; have no column &quot;^2&quot;.</source>
        <translation>「^1」から読み込んだ行には列「^2」がありません。</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; already exists. Replace it with the map theme?</source>
        <translation>スキーム「%1」はすでにあります。地図テーマで置き換えますか?</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; already exists. Replace it with the one in the file?</source>
        <translation>スキーム「%1」はすでにあります。ファイルのもので置き換えますか?</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was exported as a map theme.</source>
        <translation>スキーム「%1」を地図テーマとして書き出しました。</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was exported.</source>
        <translation>スキーム「%1」を書き出しました。</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was imported. Layers that match: %2</source>
        <translation>スキーム「%1」を読み込みました。一致したレイヤー: %2</translation>
    </message>
    <message>
        <source>The scheme &quot;%1&quot; was imported.</source>
        <translation>スキーム「%1」を読み込みました。</translation>
    </message>
    <message>
        <source>The scheme file &quot;%1&quot; cannot be read. %2</source>
        <translation>スキームファイル「%1」を読み込めません。%2</translation>
    </message>
    <message>
        <source>The scheme file &quot;%1&quot; cannot be written: %2.</source>
        <translation>スキームファイル「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>The style editor component &quot;%1&quot; cannot be used: %2.</source>
        <translation>スタイルエディターのコンポーネント「%1」は使用できません: %2。</translation>
    </message>
    <message>
        <source>The style editor component takes no further texts.</source>
        <translation>スタイルエディターのコンポーネントは追加のテキストを受け付けません。</translation>
    </message>
    <message>
        <source>The theme &quot;%1&quot; already exists. Replace its layers with the visible layers?</source>
        <translation>テーマ「%1」はすでにあります。そのレイヤを表示中のレイヤで置き換えますか?</translation>
    </message>
    <message>
        <source>The title. The default is the name of the map; &quot;&quot; for no title.</source>
        <translation>表題。省略時は地図の名前、&quot;&quot; ならなし。</translation>
    </message>
    <message>
        <source>The value &quot;%2&quot; of the layer &quot;%1&quot; is not a number.</source>
        <translation>レイヤ「%1」の「%2」は数値ではありません。</translation>
    </message>
    <message>
        <source>Their data files stay. You can undo the deletion.</source>
        <translation>データファイルは残ります。削除は元に戻せます。</translation>
    </message>
    <message>
        <source>Their saved values will be removed from the layer schemes: %1.</source>
        <translation>保存された値がレイヤースキームから削除されます: %1。</translation>
    </message>
    <message>
        <source>There are no patterns of kind %1.</source>
        <translation>種類 %1 のパターンはありません。</translation>
    </message>
    <message>
        <source>There are too many arguments.</source>
        <translation>引数が多すぎます。</translation>
    </message>
    <message>
        <source>There is a layer scheme named &quot;%1&quot; already.</source>
        <translation>「%1」という名前のレイヤースキームはすでに存在します。</translation>
    </message>
    <message>
        <source>There is no current row to read or edit in &quot;^1&quot;.</source>
        <translation>「^1」には読み取りまたは編集の対象となる現在の行がありません。</translation>
    </message>
    <message>
        <source>There is no fill pattern %1.</source>
        <translation>塗りつぶしパターン %1 はありません。</translation>
    </message>
    <message>
        <source>there is no folder &quot;%1&quot;</source>
        <translation>フォルダー「%1」がありません</translation>
    </message>
    <message>
        <source>There is no group with the ID %1.</source>
        <translation>ID %1 のグループはありません。</translation>
    </message>
    <message>
        <source>There is no layer scheme named &quot;%1&quot;.</source>
        <translation>「%1」という名前のレイヤースキームはありません。</translation>
    </message>
    <message>
        <source>There is no layer with the ID %1.</source>
        <translation>ID %1 のレイヤーはありません。</translation>
    </message>
    <message>
        <source>there is no room in the folder &quot;%1&quot;</source>
        <translation>フォルダー「%1」の空き容量が不足しています</translation>
    </message>
    <message>
        <source>There is no style &quot;%1&quot; in these layers, which keep theirs: %2</source>
        <translation>スタイル「%1」は次のレイヤーにないため、元のままです: %2</translation>
    </message>
    <message>
        <source>There is no transaction to commit in &quot;^1&quot;.</source>
        <translation>「^1」にはコミットするトランザクションがありません。</translation>
    </message>
    <message>
        <source>There is not enough disk space for the map &quot;^1&quot;.</source>
        <translation>ディスクの空き容量が不足しているため、地図「^1」を保存できません。</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>取り込むものがありません。</translation>
    </message>
    <message>
        <source>There was not enough memory to record the changes to &quot;^1&quot;; they cannot be undone.</source>
        <translation>メモリ不足のため「^1」への変更を記録できませんでした。これらの変更は元に戻せません。</translation>
    </message>
    <message>
        <source>They will be removed from their groups: %1.</source>
        <translation>属しているグループから外れます: %1。</translation>
    </message>
    <message>
        <source>Thinnest line</source>
        <translation>最も細い線</translation>
    </message>
    <message>
        <source>This map is empty. Choose File &gt; Open Data..., or drop data files here.</source>
        <translation>この地図は空です。［ファイル］&gt;［データを開く...］を選ぶか、データファイルをここにドロップしてください。</translation>
    </message>
    <message>
        <source>This program has no startup database.</source>
        <translation>このプログラムには起動時のデータベースがありません。</translation>
    </message>
    <message>
        <source>This project has no map themes.</source>
        <translation>このプロジェクトに地図テーマはありません。</translation>
    </message>
    <message>
        <source>This step is no longer possible, because layers that it changed were changed since by another program. Nothing was changed: %1</source>
        <translation>このステップが変更したレイヤーは、その後ほかのプログラムによって変更されたため、実行できません。何も変更されていません: %1</translation>
    </message>
    <message>
        <source>This step is no longer possible, because the map theme was changed since. Nothing was changed: %1</source>
        <translation>その後に地図テーマが変更されたため、この操作はできません。何も変更されていません: %1</translation>
    </message>
    <message>
        <source>Title of the map</source>
        <translation>地図の表題</translation>
    </message>
    <message>
        <source>To</source>
        <translation>変更後</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Undo &amp;Everything Since the Layer Control Opened</source>
        <translation>レイヤーコントロールを開いてからの操作をすべて元に戻す(&amp;E)</translation>
    </message>
    <message>
        <source>Undo &amp;Everything Since the Layer Control Opened (%1)</source>
        <translation>レイヤーコントロールを開いてからの操作をすべて元に戻す (%1)(&amp;E)</translation>
    </message>
    <message>
        <source>Undo All %1 St&amp;eps That Are Kept</source>
        <translation>保持されている%1件の操作をすべて元に戻す(&amp;E)</translation>
    </message>
    <message>
        <source>Undo all changes since the layer control was opened, as one step</source>
        <translation>レイヤーコントロールを開いてからのすべての変更を1回で元に戻します</translation>
    </message>
    <message>
        <source>Undo Layer Change</source>
        <translation>レイヤーの変更を元に戻す</translation>
    </message>
    <message>
        <source>Undo the last change to layers, groups or schemes</source>
        <translation>レイヤー、グループ、スキームへの最後の変更を取り消します</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Use portrait orientation.</source>
        <translation>用紙を縦にします。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>値:</translation>
    </message>
    <message>
        <source>this program has no driver for %1</source>
        <translation>このプログラムには%1用のドライバーがありません</translation>
    </message>
    <message>
        <source>visible</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>What &quot;%1&quot; Holds</source>
        <translation>「%1」の内容</translation>
    </message>
    <message>
        <source>What is added gets the present values of the layers; what is taken away is lost.</source>
        <translation>追加した項目にはレイヤーの今の値が入り、外した項目の値は失われます。</translation>
    </message>
    <message>
        <source>What you edited was changed elsewhere meanwhile: %1</source>
        <translation>編集した値は、その間に別の場所で変更されました: %1</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Words of layers and properties</source>
        <translation>レイヤーとプロパティの語</translation>
    </message>
    <message>
        <source>Write each call between the map and the layer control to FILE.</source>
        <translation>地図とレイヤーコントロールの間の呼び出しをすべて FILE に書き込みます。</translation>
    </message>
    <message>
        <source>Write the map as PDF, SVG or PNG</source>
        <translation>地図を PDF、SVG、PNG として書き出します</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>地図を拡大します</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>地図を縮小します</translation>
    </message>
    <message>
        <source>Zoom to &amp;All</source>
        <translation>全体表示(&amp;A)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>it has no attribute named %1</source>
        <translation>%1 という名前の属性がありません</translation>
    </message>
    <message>
        <source>it has no layer named %1</source>
        <translation>%1 という名前のレイヤーがありません</translation>
    </message>
    <message>
        <source>it is no style editor component (&quot;%1&quot; is missing)</source>
        <translation>スタイルエディターのコンポーネントではありません (「%1」がありません)</translation>
    </message>
    <message>
        <source>it is too large for this computer's memory</source>
        <translation>このコンピューターのメモリには大きすぎます</translation>
    </message>
    <message>
        <source>it made no entry object</source>
        <translation>エントリーオブジェクトが作成されませんでした</translation>
    </message>
    <message>
        <source>it uses version %1 of the interface, this program uses version %2</source>
        <translation>インターフェイスのバージョンは %1 ですが、このプログラムは %2 です</translation>
    </message>
    <message>
        <source>it was built with Qt %1, this program with Qt %2</source>
        <translation>このコンポーネントは Qt %1 で、このプログラムは Qt %2 でビルドされています</translation>
    </message>
    <message>
        <source>its format is read only</source>
        <translation>この形式は読み取り専用です</translation>
    </message>
    <message>
        <source>its name must end in .pdf, .svg or .png</source>
        <translation>名前の末尾は .pdf、.svg、.png のいずれかです</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>値なし</translation>
    </message>
    <message>
        <source>outside the projection</source>
        <translation>投影法の範囲外</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>the feature is no longer there</source>
        <translation>地物がもうありません</translation>
    </message>
    <message>
        <source>the file is read only</source>
        <translation>ファイルは読み取り専用です</translation>
    </message>
    <message>
        <source>the new position is outside the coordinate system</source>
        <translation>新しい位置は座標系の範囲外です</translation>
    </message>
    <message>
        <source>Zoom to Layer</source>
        <translation>レイヤーの範囲にズーム</translation>
    </message>
</context>
</TS>
