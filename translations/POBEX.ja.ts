<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>LayerControl</name>
    <message>
        <source>&quot;^1&quot; is no language. Languages are written as &quot;nl&quot; or &quot;pt-BR&quot;, for example.</source>
        <translation>「^1」は言語ではありません。言語は「nl」や「pt-BR」のように書きます。</translation>
    </message>
    <message>
        <source>&quot;dont care&quot; means that there is no limit.</source>
        <translation>「指定なし」は制限がないことを表します。</translation>
    </message>
    <message>
        <source>&quot;Show Only These&quot; has not changed any layer.</source>
        <translation>「これらだけを表示」によって変更されたレイヤーはありません。</translation>
    </message>
    <message>
        <source>&amp;Manage Schemes...</source>
        <translation>スキームの管理(&amp;M)...</translation>
    </message>
    <message>
        <source>&amp;Map&apos;s Scale (^1)</source>
        <translation>地図の縮尺 (^1)(&amp;M)</translation>
    </message>
    <message>
        <source>(OBS): obscured; the layer is not drawn at the current scale.</source>
        <translation>(OBS): 隠れています。現在の縮尺ではレイヤーは描画されません。</translation>
    </message>
    <message>
        <source>(SUP): suppressed; the layer is not drawn, for example because its data cannot be read.</source>
        <translation>(SUP): 抑制されています。データを読み込めないなどの理由で、レイヤーは描画されません。</translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1個のレイヤー</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 ピクセル</translation>
    </message>
    <message>
        <source>&apos;^1&apos; is not a number.</source>
        <translation>「^1」は数値ではありません。</translation>
    </message>
    <message>
        <source>1:^1</source>
        <translation>1:^1</translation>
    </message>
    <message>
        <source>&lt;No Name&gt;</source>
        <translation>&lt;名前なし&gt;</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>These groups have no layers.</source>
        <translation>これらのグループにはレイヤーがありません。</translation>
    </message>
    <message>
        <source>This group has no layers.</source>
        <translation>このグループにはレイヤーがありません。</translation>
    </message>
    <message>
        <source>With the scales of this map, this range is empty.</source>
        <translation>このマップの縮尺では、この範囲は空になります。</translation>
    </message>
    <message>
        <source>[various]</source>
        <translation>[複数の値]</translation>
    </message>
    <message>
        <source>^1 &apos;^2&apos; is not a number.</source>
        <translation>^1 の「^2」は数値ではありません。</translation>
    </message>
    <message>
        <source>^1 (highest)</source>
        <translation>^1 (最高)</translation>
    </message>
    <message>
        <source>^1 (lowest)</source>
        <translation>^1 (最低)</translation>
    </message>
    <message>
        <source>^1 ^2 cannot be used.</source>
        <translation>^1 ^2 は使用できません。</translation>
    </message>
    <message>
        <source>^1 ^2 is too large.</source>
        <translation>^1 ^2 は大きすぎます。</translation>
    </message>
    <message>
        <source>^1 ^2 is too small.</source>
        <translation>^1 ^2 は小さすぎます。</translation>
    </message>
    <message>
        <source>^1 has no value.</source>
        <translation>^1 に値がありません。</translation>
    </message>
    <message>
        <source>^1 layers</source>
        <translation>^1個のレイヤー</translation>
    </message>
    <message>
        <source>^1 mm will be stored.</source>
        <translation>^1 mm として保存されます。</translation>
    </message>
    <message>
        <source>^1 of ^2</source>
        <translation>^2 件中 ^1 件</translation>
    </message>
    <message>
        <source>^1 pixels will be stored.</source>
        <translation>^1 ピクセルとして保存されます。</translation>
    </message>
    <message>
        <source>^1 to ^2</source>
        <translation>^1～^2</translation>
    </message>
    <message>
        <source>^1: ^2</source>
        <translation>^1：^2</translation>
    </message>
    <message>
        <source>A click on an object of the layer can show its attributes. Needs a hitable layer.</source>
        <translation>レイヤーのオブジェクトをクリックして属性を表示できます。クリック可能なレイヤーである必要があります。</translation>
    </message>
    <message>
        <source>A size has no finite value in pixels.</source>
        <translation>サイズをピクセル単位の有限な値にできません。</translation>
    </message>
    <message>
        <source>A value of this group cannot be read.</source>
        <translation>このグループの値を読み込めません。</translation>
    </message>
    <message>
        <source>A value of this layer cannot be read.</source>
        <translation>このレイヤーの値を読み込めません。</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>All of these layers are hidden already.</source>
        <translation>これらのレイヤーはすべて非表示です。</translation>
    </message>
    <message>
        <source>All of these layers are shown already.</source>
        <translation>これらのレイヤーはすべて表示されています。</translation>
    </message>
    <message>
        <source>An unexpected error stopped the action.</source>
        <translation>予期しないエラーのため、操作が中断されました。</translation>
    </message>
    <message>
        <source>An unexpected error stopped the action: ^1</source>
        <translation>予期しないエラーのため、操作が中断されました: ^1</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Are you sure you wish to save the colour schemes to the startup database?</source>
        <translation>配色スキームを起動時のデータベースに保存してもよろしいですか?</translation>
    </message>
    <message>
        <source>&amp;Backdrop</source>
        <translation>背景(&amp;B)</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>背景色(&amp;G):</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>変更あり</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Code ^1 has already been assigned. Please assign another code.</source>
        <translation>コード ^1 はすでに割り当てられています。別のコードを割り当ててください。</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>コード(&amp;O):</translation>
    </message>
    <message>
        <source>Code: ^1</source>
        <translation>コード: ^1</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>すべて折りたたむ</translation>
    </message>
    <message>
        <source>Copy Settings</source>
        <translation>設定をコピー</translation>
    </message>
    <message>
        <source>Copy the settings of a layer or a group first.</source>
        <translation>先にレイヤーまたはグループの設定をコピーしてください。</translation>
    </message>
    <message>
        <source>Create a layer.</source>
        <translation>レイヤーを作成します。</translation>
    </message>
    <message>
        <source>Create a scheme from the current layer setup.</source>
        <translation>現在のレイヤー設定からスキームを作成します。</translation>
    </message>
    <message>
        <source>Current &amp;Scheme:</source>
        <translation>現在のスキーム(&amp;S):</translation>
    </message>
    <message>
        <source>Custom Colour...</source>
        <translation>カスタムカラー...</translation>
    </message>
    <message>
        <source>Custom Line Style...</source>
        <translation>カスタム線スタイル...</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>濃い緑</translation>
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
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete layer scheme &apos;^1&apos;?</source>
        <translation>レイヤースキーム「^1」を削除しますか?</translation>
    </message>
    <message>
        <source>Delete the selected layer.</source>
        <translation>選択したレイヤーを削除します。</translation>
    </message>
    <message>
        <source>Delete this scheme.</source>
        <translation>このスキームを削除します。</translation>
    </message>
    <message>
        <source>Display mode</source>
        <translation>表示モード</translation>
    </message>
    <message>
        <source>Do not draw the layer for now.</source>
        <translation>当面はレイヤーを描画しません。</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the &apos;^2&apos; ^1?</source>
        <translation>^1「^2」への変更を適用しますか?</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the ^1 selected layers?</source>
        <translation>選択した^1個のレイヤーへの変更を適用しますか?</translation>
    </message>
    <message>
        <source>Do you wish to apply the changes to the selected layer?</source>
        <translation>選択したレイヤーへの変更を適用しますか?</translation>
    </message>
    <message>
        <source>dont care</source>
        <translation>指定なし</translation>
    </message>
    <message>
        <source>Dotted line</source>
        <translation>点線</translation>
    </message>
    <message>
        <source>Double-click to enter the width.</source>
        <translation>ダブルクリックして幅を入力します。</translation>
    </message>
    <message>
        <source>Double-click, or press F2, to edit the code.</source>
        <translation>コードを編集するには、ダブルクリックするか F2 キーを押します。</translation>
    </message>
    <message>
        <source>Draw Priority</source>
        <translation>描画優先度</translation>
    </message>
    <message>
        <source>Draw symbols in the colours of the layer.</source>
        <translation>記号をレイヤーの色で描画します。</translation>
    </message>
    <message>
        <source>Draw the layer faintly, behind the others.</source>
        <translation>レイヤーを他のレイヤーの背後に薄く描画します。</translation>
    </message>
    <message>
        <source>Draw the layer on the map.</source>
        <translation>レイヤーを地図に描画します。</translation>
    </message>
    <message>
        <source>Draw the layer with its own style.</source>
        <translation>レイヤーを固有のスタイルで描画します。</translation>
    </message>
    <message>
        <source>Drop the changes and show the stored values again.</source>
        <translation>変更を破棄し、保存されている値を再表示します。</translation>
    </message>
    <message>
        <source>Edit code</source>
        <translation>コードの編集</translation>
    </message>
    <message>
        <source>Edit layer settings on the Groups and Layers tabs.</source>
        <translation>レイヤーの設定は「グループ」タブと「レイヤー」タブで編集します。</translation>
    </message>
    <message>
        <source>Edit Name</source>
        <translation>名前の編集</translation>
    </message>
    <message>
        <source>En&amp;quirable</source>
        <translation>照会可能(&amp;Q)</translation>
    </message>
    <message>
        <source>Enter Line Width</source>
        <translation>線幅の入力</translation>
    </message>
    <message>
        <source>ERROR: Group not Found</source>
        <translation>エラー: グループが見つかりません</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>すべて展開</translation>
    </message>
    <message>
        <source>Extended Colours</source>
        <translation>拡張カラー</translation>
    </message>
    <message>
        <source>&amp;Fill colour:</source>
        <translation>塗りの色(&amp;F):</translation>
    </message>
    <message>
        <source>F&amp;ill style:</source>
        <translation>塗りパターン(&amp;I):</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Find groups and layers</source>
        <translation>グループとレイヤーを検索</translation>
    </message>
    <message>
        <source>Find layers</source>
        <translation>レイヤーを検索</translation>
    </message>
    <message>
        <source>Find layers by name or code. Ctrl+F goes here, Escape goes back.</source>
        <translation>レイヤーを名前またはコードで検索します。Ctrl+F でここに移動し、Esc で戻ります。</translation>
    </message>
    <message>
        <source>Find layers by name, code or group. Ctrl+F goes here, Escape goes back.</source>
        <translation>レイヤーを名前、コード、グループで検索します。Ctrl+F でここに移動し、Esc で戻ります。</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>フラグ</translation>
    </message>
    <message>
        <source>Go back to the last saved values of this scheme.</source>
        <translation>このスキームを最後に保存した値に戻します。</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>&amp;Hidden</source>
        <translation>非表示(&amp;H)</translation>
    </message>
    <message>
        <source>Groups: ^1</source>
        <translation>グループ: ^1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Hi&amp;table</source>
        <translation>クリック可能(&amp;T)</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>非表示にする</translation>
    </message>
    <message>
        <source>How the renderer draws the layer.</source>
        <translation>レイヤーの描画方法です。</translation>
    </message>
    <message>
        <source>Invalid Name</source>
        <translation>名前が無効です</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>選択を反転</translation>
    </message>
    <message>
        <source>it runs with Qt ^1, this program with Qt ^2</source>
        <translation>このコンポーネントは Qt ^1 で、このプログラムは Qt ^2 で実行されています</translation>
    </message>
    <message>
        <source>it uses version ^1 of the interface, this program uses version ^2</source>
        <translation>インターフェイスのバージョンは ^1 ですが、このプログラムは ^2 です</translation>
    </message>
    <message>
        <source>it was built with the standard library &quot;^1&quot;, this program with &quot;^2&quot;</source>
        <translation>このコンポーネントは標準ライブラリ「^1」で、このプログラムは「^2」でビルドされています</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Layer Control</source>
        <translation>レイヤーコントロール</translation>
    </message>
    <message>
        <source>Layer groups</source>
        <translation>レイヤーグループ</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Layers are deleted in the list of layers.</source>
        <translation>レイヤーの削除はレイヤーの一覧で行います。</translation>
    </message>
    <message>
        <source>Line and Fill</source>
        <translation>線と塗りつぶし</translation>
    </message>
    <message>
        <source>Li&amp;ne colour:</source>
        <translation>線の色(&amp;N):</translation>
    </message>
    <message>
        <source>Line style ^1</source>
        <translation>線種 ^1</translation>
    </message>
    <message>
        <source>Line &amp;style:</source>
        <translation>線種(&amp;S):</translation>
    </message>
    <message>
        <source>Line Width</source>
        <translation>線の幅</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Loc&amp;ked</source>
        <translation>ロック(&amp;K)</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>栗色</translation>
    </message>
    <message>
        <source>Ma&amp;ximum:</source>
        <translation>最大(&amp;X):</translation>
    </message>
    <message>
        <source>&amp;Minimum:</source>
        <translation>最小(&amp;M):</translation>
    </message>
    <message>
        <source>Maximum scale: ^1</source>
        <translation>最大縮尺: ^1</translation>
    </message>
    <message>
        <source>Minimum scale: ^1</source>
        <translation>最小縮尺: ^1</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>紺</translation>
    </message>
    <message>
        <source>New Scheme</source>
        <translation>新しいスキーム</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>新規(&amp;N)...</translation>
    </message>
    <message>
        <source>Ne&amp;w...</source>
        <translation>新規(&amp;W)...</translation>
    </message>
    <message>
        <source>No layer is shown.</source>
        <translation>表示しているレイヤーはありません。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Norma&amp;l</source>
        <translation>標準表示(&amp;L)</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準表示</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>見つかりません。</translation>
    </message>
    <message>
        <source>Objects of the layer can be clicked on the map.</source>
        <translation>レイヤーのオブジェクトを地図上でクリックできます。</translation>
    </message>
    <message>
        <source>Objects of the layer can be selected. Needs a hitable layer.</source>
        <translation>レイヤーのオブジェクトを選択できます。クリック可能なレイヤーである必要があります。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>オリーブ</translation>
    </message>
    <message>
        <source>One layer or group at a time can be renamed, but no system layer.</source>
        <translation>名前を変更できるのは一度に 1 つのレイヤーまたはグループで、システムレイヤーは変更できません。</translation>
    </message>
    <message>
        <source>Only 1 of ^1 layers is shown.</source>
        <translation>^1個のレイヤーのうち1個だけを表示しています。</translation>
    </message>
    <message>
        <source>Only ^1 of ^2 layers are shown.</source>
        <translation>^2個のレイヤーのうち^1個だけを表示しています。</translation>
    </message>
    <message>
        <source>Outline only</source>
        <translation>輪郭のみ</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>オーバーフローしました</translation>
    </message>
    <message>
        <source>Pattern ^1</source>
        <translation>パターン ^1</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>Please supply a non-blank name, or cancel.</source>
        <translation>空白でない名前を入力するか、キャンセルしてください。</translation>
    </message>
    <message>
        <source>Points that are set near objects of the layer snap to them.</source>
        <translation>レイヤーのオブジェクトの近くに置いた点は、オブジェクトにスナップします。</translation>
    </message>
    <message>
        <source>P&amp;riority:</source>
        <translation>優先度(&amp;R):</translation>
    </message>
    <message>
        <source>Possible: ^1 to ^2</source>
        <translation>指定できる範囲: ^1～^2</translation>
    </message>
    <message>
        <source>Protect the layer against changes.</source>
        <translation>レイヤーを変更から保護します。</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>元に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Rename, copy, delete, compare, export and import the schemes of this map.</source>
        <translation>この地図のスキームの名前を変更し、複製、削除、比較、書き出し、読み込みを行います。</translation>
    </message>
    <message>
        <source>Revert to the last saved values in layer scheme &apos;^1&apos;?</source>
        <translation>レイヤースキーム「^1」を最後に保存した値に戻しますか?</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>Save all schemes of this map to the startup database, from which new maps take their schemes.</source>
        <translation>この地図のすべてのスキームを、新しい地図のスキームの元になる起動時のデータベースに保存します。</translation>
    </message>
    <message>
        <source>Save current layer setup to scheme &apos;^1&apos;?</source>
        <translation>現在のレイヤー設定をスキーム「^1」に保存しますか?</translation>
    </message>
    <message>
        <source>Save the current layer setup to this scheme.</source>
        <translation>現在のレイヤー設定をこのスキームに保存します。</translation>
    </message>
    <message>
        <source>Save to S&amp;tartup</source>
        <translation>起動時用に保存(&amp;T)</translation>
    </message>
    <message>
        <source>Schemes</source>
        <translation>スキーム</translation>
    </message>
    <message>
        <source>Select a layer first.</source>
        <translation>先にレイヤーを選択してください。</translation>
    </message>
    <message>
        <source>Select a layer or a group first.</source>
        <translation>先にレイヤーまたはグループを選択してください。</translation>
    </message>
    <message>
        <source>Select a layer or a group to see its settings.</source>
        <translation>設定を表示するには、レイヤーまたはグループを選択してください。</translation>
    </message>
    <message>
        <source>S&amp;electable</source>
        <translation>選択可能(&amp;E)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Select All in Group</source>
        <translation>グループ内をすべて選択</translation>
    </message>
    <message>
        <source>Set Draw Priority</source>
        <translation>描画優先度の設定</translation>
    </message>
    <message>
        <source>Set Maximum Visible Scale</source>
        <translation>最大表示縮尺の設定</translation>
    </message>
    <message>
        <source>Set Minimum Visible Scale</source>
        <translation>最小表示縮尺の設定</translation>
    </message>
    <message>
        <source>Set the largest scale index at which the layer is drawn; &quot;dont care&quot; sets no limit.</source>
        <translation>レイヤーを描画する最大の縮尺インデックスを設定します。「指定なし」では制限がありません。</translation>
    </message>
    <message>
        <source>Set the order in which layers are drawn; 1 is the highest.</source>
        <translation>レイヤーの描画順を設定します。1 が最高です。</translation>
    </message>
    <message>
        <source>Set the smallest scale index at which the layer is drawn; &quot;dont care&quot; sets no limit.</source>
        <translation>レイヤーを描画する最小の縮尺インデックスを設定します。「指定なし」では制限がありません。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show All Again</source>
        <translation>すべて再表示</translation>
    </message>
    <message>
        <source>Show Only These</source>
        <translation>これらだけを表示</translation>
    </message>
    <message>
        <source>Show Line and Fill</source>
        <translation>線と塗りつぶしを表示</translation>
    </message>
    <message>
        <source>Show or hide the settings beside the lists.</source>
        <translation>リストの横の設定を表示または非表示にします。</translation>
    </message>
    <message>
        <source>Hide settings</source>
        <translation>設定を隠す</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>なし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Paste Settings</source>
        <translation>設定の貼り付け</translation>
    </message>
    <message>
        <source>Paste Settings...</source>
        <translation>設定を貼り付け...</translation>
    </message>
    <message>
        <source>Paste these settings into ^1:</source>
        <translation>次の設定を^1に貼り付け:</translation>
    </message>
    <message>
        <source>Paste these settings into &apos;^1&apos;:</source>
        <translation>次の設定を「^1」に貼り付け:</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings to paste</source>
        <translation>貼り付ける設定</translation>
    </message>
    <message>
        <source>Show settings</source>
        <translation>設定を表示</translation>
    </message>
    <message>
        <source>Silver</source>
        <translation>銀色</translation>
    </message>
    <message>
        <source>Sna&amp;p required</source>
        <translation>スナップ必須(&amp;P)</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Source: ^1</source>
        <translation>データ: ^1</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Step down</source>
        <translation>減らす</translation>
    </message>
    <message>
        <source>Step up</source>
        <translation>増やす</translation>
    </message>
    <message>
        <source>Store the changes.</source>
        <translation>変更を保存します。</translation>
    </message>
    <message>
        <source>Style Editor with that ID already exists.</source>
        <translation>その ID のスタイルエディターはすでに存在します。</translation>
    </message>
    <message>
        <source>St&amp;yle:</source>
        <translation>スタイル(&amp;Y):</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>インデックスが有効範囲にありません</translation>
    </message>
    <message>
        <source>Switch to &apos;^1&apos;? Any unsaved changes to the current scheme will be lost. Continue?</source>
        <translation>「^1」に切り替えますか? 現在のスキームに対する未保存の変更は失われます。続行しますか?</translation>
    </message>
    <message>
        <source>Switch to another layer scheme.</source>
        <translation>別のレイヤースキームに切り替えます。</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>青緑</translation>
    </message>
    <message>
        <source>The ^1 &apos;^2&apos; no longer exists. The changes were not applied.</source>
        <translation>^1「^2」は存在しません。変更は適用されませんでした。</translation>
    </message>
    <message>
        <source>The changes were not applied.</source>
        <translation>変更は適用されませんでした。</translation>
    </message>
    <message>
        <source>The colour between the lines of patterns.</source>
        <translation>パターンの線の間の色です。</translation>
    </message>
    <message>
        <source>The colour of filled areas and of the lines of patterns.</source>
        <translation>塗りつぶした面とパターンの線の色です。</translation>
    </message>
    <message>
        <source>The colour of lines and outlines.</source>
        <translation>線と輪郭の色です。</translation>
    </message>
    <message>
        <source>The copied settings cannot be read.</source>
        <translation>コピーした設定を読み取れません。</translation>
    </message>
    <message>
        <source>The folder &quot;^1&quot; has no texts. They are looked for as &quot;nl/POBEX.LRT&quot; and &quot;POBEX.nl.ts&quot;, for example.</source>
        <translation>フォルダー「^1」にテキストがありません。「nl/POBEX.LRT」や「POBEX.nl.ts」などの名前で探します。</translation>
    </message>
    <message>
        <source>The group &apos;^1&apos; no longer has any layers. The changes were not applied.</source>
        <translation>グループ「^1」にはレイヤーがもうありません。変更は適用されませんでした。</translation>
    </message>
    <message>
        <source>The last layer scheme cannot be deleted.</source>
        <translation>最後のレイヤースキームは削除できません。</translation>
    </message>
    <message>
        <source>The layer control has not been initialised.</source>
        <translation>レイヤーコントロールが初期化されていません。</translation>
    </message>
    <message>
        <source>The pattern of filled areas. If both fill colours are transparent, patterns have the line colour.</source>
        <translation>面の塗りパターンです。塗りつぶしの色が両方とも透明なときは、パターンは線の色になります。</translation>
    </message>
    <message>
        <source>The pattern or the width of lines and outlines.</source>
        <translation>線と輪郭のパターンまたは幅です。</translation>
    </message>
    <message>
        <source>The program must make a QApplication before it makes a layer control.</source>
        <translation>プログラムはレイヤーコントロールを作成する前に QApplication を作成する必要があります。</translation>
    </message>
    <message>
        <source>The selected layers (^1) no longer exist. The changes were not applied.</source>
        <translation>選択したレイヤー (^1) は存在しません。変更は適用されませんでした。</translation>
    </message>
    <message>
        <source>The texts &quot;^1&quot; cannot be read: ^2</source>
        <translation>テキスト「^1」を読み取れません: ^2</translation>
    </message>
    <message>
        <source>The texts &quot;^1&quot; cannot be used: they are larger than 8 MB, or no Qt Linguist document with finished translations.</source>
        <translation>テキスト「^1」を使用できません。8 MB を超えているか、完了した翻訳を含む Qt Linguist 文書ではありません。</translation>
    </message>
    <message>
        <source>The thinnest line will be stored.</source>
        <translation>最も細い線として保存されます。</translation>
    </message>
    <message>
        <source>The value of a check box is 0, 1 or 2.</source>
        <translation>チェックボックスの値は 0、1、2 のいずれかです。</translation>
    </message>
    <message>
        <source>Theme Control: ^1</source>
        <translation>テーマコントロール: ^1</translation>
    </message>
    <message>
        <source>These layers have no setting in common.</source>
        <translation>これらのレイヤーに共通の設定はありません。</translation>
    </message>
    <message>
        <source>These layers no longer exist. Nothing was pasted.</source>
        <translation>これらのレイヤーは存在しません。何も貼り付けられませんでした。</translation>
    </message>
    <message>
        <source>Thinnest line</source>
        <translation>最も細い線</translation>
    </message>
    <message>
        <source>This map cannot keep which layers were hidden.</source>
        <translation>この地図には、非表示にしたレイヤーを記録できません。</translation>
    </message>
    <message>
        <source>This map has no display modes.</source>
        <translation>このマップには表示モードがありません。</translation>
    </message>
    <message>
        <source>This map has no style of that name.</source>
        <translation>このマップには、この名前のスタイルがありません。</translation>
    </message>
    <message>
        <source>this program does not tell which version it uses</source>
        <translation>このプログラムは使用しているバージョンを通知していません</translation>
    </message>
    <message>
        <source>Tick all settings.</source>
        <translation>すべての設定を選択します。</translation>
    </message>
    <message>
        <source>Tick no setting.</source>
        <translation>設定の選択をすべて解除します。</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>型が一致しません</translation>
    </message>
    <message>
        <source>Unexpected program flow in frmLayerStyles</source>
        <translation>frmLayerStyles で予期しない処理の流れが発生しました</translation>
    </message>
    <message>
        <source>Unknown Fill Style!</source>
        <translation>不明な塗りつぶしスタイルです!</translation>
    </message>
    <message>
        <source>&amp;Use for symbols</source>
        <translation>記号に使用(&amp;U)</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>複数の値</translation>
    </message>
    <message>
        <source>various</source>
        <translation>複数の値</translation>
    </message>
    <message>
        <source>&amp;Visible</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Visible Scale Range</source>
        <translation>表示縮尺の範囲</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>You may not delete a &apos;system layer&apos;</source>
        <translation>「システムレイヤー」は削除できません</translation>
    </message>
    <message>
        <source>You may not delete a &apos;system layer&apos;. Selected layers that stay: ^1.</source>
        <translation>「システムレイヤー」は削除できません。残る選択レイヤー: ^1。</translation>
    </message>
</context>
</TS>
