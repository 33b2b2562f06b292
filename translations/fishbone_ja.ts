<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AccessibleBone</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>階層 %1</translation>
    </message>
    <message>
        <source>linked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンクあり</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>選択</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>展開</translation>
    </message>
    <message>
        <source>Selects this bone alone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>この骨だけを選択します</translation>
    </message>
    <message>
        <source>Hides the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>下位の骨を隠します</translation>
    </message>
    <message>
        <source>Shows the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>下位の骨を表示します</translation>
    </message>
</context>
<context>
    <name>AccessibleDiagram</name>
    <message>
        <source>Diagram: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>特性要因図: %1</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>特性要因図</translation>
    </message>
</context>
<context>
    <name>AccessibleSubject</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>階層 %1</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>展開</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>選択</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>no date</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限なし</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者の変更</translation>
    </message>
    <message>
        <source>Change planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限の変更</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータスの変更</translation>
    </message>
    <message>
        <source>Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>要因</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (期限超過)</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者未定</translation>
    </message>
    <message>
        <source>No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータスなし</translation>
    </message>
</context>
<context>
    <name>ActionsPanel</name>
    <message>
        <source>Write to a file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイルに書き出す…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>要因の順位</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>In one list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>まとめない</translation>
    </message>
    <message>
        <source>By person</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者別</translation>
    </message>
    <message>
        <source>By status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス別</translation>
    </message>
    <message>
        <source>Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>印刷…</translation>
    </message>
</context>
<context>
    <name>AutosaveStatus</name>
    <message>
        <source>Autosaved at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 に自動保存しました</translation>
    </message>
    <message>
        <source>A copy of the changes that are not saved is kept in %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>保存されていない変更のコピーは %1 にあります</translation>
    </message>
    <message>
        <source>Autosave failed at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 に自動保存できませんでした</translation>
    </message>
    <message>
        <source>%1 cannot be written. Changes that are not saved would be lost if the program did not end well.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 に書き込めません。プログラムが正常に終了しなかった場合、保存されていない変更は失われます。</translation>
    </message>
</context>
<context>
    <name>BusyCursor</name>
    <message>
        <source>Working…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>処理中…</translation>
    </message>
</context>
<context>
    <name>CanvasTheme</name>
    <message>
        <source>The style is not kept: %1 cannot be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイルを保存できません: %1 に書き込めません</translation>
    </message>
</context>
<context>
    <name>ClearContent</name>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>中止</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>完了</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>遅れて完了</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>延期</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>進行中</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>待機中</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>承認待ち</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>疑いあり</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検証中</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>除外</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>根本原因</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n 票</numerusform>
        </translation>
    </message>
    <message>
        <source>votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>閉じる</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) have changes that were not saved. Save those that are checked?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n 個のドキュメントに保存されていない変更があります。チェックしたものを保存しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>保存されていない変更のあるドキュメント</translation>
    </message>
    <message>
        <source>&amp;Save checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>チェックしたものを保存(&amp;S)</translation>
    </message>
    <message>
        <source>Close &amp;without saving</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>保存せずに閉じる(&amp;W)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the ending names no format that can be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>拡張子が読み込める形式のものではありません</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 に指定できるのは %2 です (指定値: 「%3」)</translation>
    </message>
    <message>
        <source>--%1 needs convert, info, report or check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 には convert、info、report、check のいずれかが必要です</translation>
    </message>
    <message>
        <source>--%1 needs info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 には info が必要です</translation>
    </message>
    <message>
        <source>--%1 needs convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 には convert が必要です</translation>
    </message>
    <message>
        <source>--%1 needs --export</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 には --export が必要です</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .png, .svg, .pdf, .html or .pptx</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」の形式が不明です: 名前の末尾を .png、.svg、.pdf、.html、.pptx のいずれかにしてください</translation>
    </message>
    <message>
        <source>--export takes one document, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--export に指定できるドキュメントは 1 つです (指定数: %1)</translation>
    </message>
    <message>
        <source>--%1 does not go with convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 は convert と一緒に使えません</translation>
    </message>
    <message>
        <source>convert takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>convert には読み込むファイルと書き出すファイルが必要です</translation>
    </message>
    <message>
        <source>--%1 needs a picture to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 は画像を書き出すときだけ使えます</translation>
    </message>
    <message>
        <source>--%1 does not go with info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 は info と一緒に使えません</translation>
    </message>
    <message>
        <source>info takes one file, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>info に指定できるファイルは 1 つです (指定数: %1)</translation>
    </message>
    <message>
        <source>--%1 does not go with report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 は report と一緒に使えません</translation>
    </message>
    <message>
        <source>report takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>report には読み込むファイルと書き出すファイルが必要です</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」の形式が不明です: 名前の末尾を .html、.pdf、.md のいずれかにしてください</translation>
    </message>
    <message>
        <source>--%1 does not go with check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 は check と一緒に使えません</translation>
    </message>
    <message>
        <source>check takes the files to look at</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>check には調べるファイルが必要です</translation>
    </message>
    <message>
        <source>--%1 does not go with merge</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 は merge と一緒に使えません</translation>
    </message>
    <message>
        <source>merge takes the files of the base, of ours and of theirs</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>merge にはベース、自分側、相手側のファイルが必要です</translation>
    </message>
    <message>
        <source>--%1 does not go with a document from the network</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 はネットワーク上のドキュメントには使えません</translation>
    </message>
    <message>
        <source>%1 can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 は書き出し専用です</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 は読み込み専用です</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 のいずれか</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or --from tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」の形式が不明です: 名前の末尾を %2 のいずれかにするか、--from で %3 のいずれかを指定してください</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or in .png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」の形式が不明です: 名前の末尾を %2 のいずれか、画像なら .png、.svg、.pdf、.html、.pptx のいずれかにするか、--to で %3 のいずれかを指定してください</translation>
    </message>
    <message>
        <source>--size and --scale exclude each other</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--size と --scale は同時に指定できません</translation>
    </message>
    <message>
        <source>a page for the browser needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ブラウザー用のページには「明瞭」の外観が必要です</translation>
    </message>
    <message>
        <source>all, none or a number of levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>all、none、または階層数</translation>
    </message>
    <message>
        <source>a size such as 1600x900</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>1600x900 のようなサイズ</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>0 より大きい数</translation>
    </message>
    <message>
        <source>the name of a colour, #rrggbb or transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>色の名前、#rrggbb、または transparent</translation>
    </message>
    <message>
        <source>Show this help and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>バージョンを表示して終了します。</translation>
    </message>
    <message>
        <source>Show texts in &lt;language&gt;, such as de or zh, instead of the system&apos;s.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>システムの言語ではなく &lt;language&gt;（de や zh など）で表示します。</translation>
    </message>
    <message>
        <source>Draw the diagram into the picture &lt;file&gt; and quit. The ending .png, .svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no display.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図を画像 &lt;file&gt; に描画して終了します。形式は拡張子 .png、.svg、.pdf、.html、またはスライドの .pptx で決まります。画面は不要です。</translation>
    </message>
    <message>
        <source>How far to expand the bones of the picture: all (the default), none, or a number of levels below the main bones.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像の骨をどこまで展開するか: all (すべて、既定)、none (展開しない)、または大骨より下の階層数。</translation>
    </message>
    <message>
        <source>Make the picture &lt;width&gt;x&lt;height&gt; in size and fit the drawing in.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像のサイズを &lt;width&gt;x&lt;height&gt; とし、図をその中に収めます。</translation>
    </message>
    <message>
        <source>Draw &lt;factor&gt; times as large as on the screen at 100 %.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画面の 100 % 表示の &lt;factor&gt; 倍の大きさで描画します。</translation>
    </message>
    <message>
        <source>Fill the picture with &lt;colour&gt;, a name or #rrggbb, or leave it transparent. White is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像を &lt;colour&gt; (色の名前または #rrggbb) で塗りつぶすか、transparent で透明のままにします。既定は白です。</translation>
    </message>
    <message>
        <source>Read the file as &lt;format&gt;, whatever its ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>拡張子にかかわらず &lt;format&gt; 形式として読み込みます。</translation>
    </message>
    <message>
        <source>Write &lt;format&gt;, whatever the ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>拡張子にかかわらず &lt;format&gt; 形式で書き出します。</translation>
    </message>
    <message>
        <source>Write nothing when that would leave content out.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>失われる内容があるときは何も書き出しません。</translation>
    </message>
    <message>
        <source>Say it as JSON, for programs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>プログラム向けに JSON で出力します。</translation>
    </message>
    <message>
        <source>Edits fishbone diagrams of tasks.

These commands need no display:
  convert   write a diagram in another format, or as a picture
  info      say what is in a diagram, and what is off in it
  report    write what is sent round after a meeting
  check     name what is off in files, line by line
  merge     merge two versions of a diagram, for git
&quot;fishbone convert --help&quot; tells more. A file of such a name is ./convert.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タスクの特性要因図を編集します。

次のコマンドに画面は不要です:
  convert   図を別の形式または画像で書き出す
  info      図の内容と問題点を表示する
  report    会議の後に配布する報告書を書き出す
  check     ファイルの問題点を 1 行ずつ表示する
  merge     図の 2 つの版をマージする (git 用)
詳しくは「fishbone convert --help」を実行してください。同じ名前のファイルは ./convert のように指定します。</translation>
    </message>
    <message>
        <source>Diagrams to open: files, or http and https URLs. Without one, a new diagram.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>開く図: ファイル、または http や https の URL。指定がなければ新しい図を開きます。</translation>
    </message>
    <message>
        <source>Writes a diagram in another format, or as a picture.
The endings tell the formats. Read: %1.
Written: %2, and png, svg, pdf, html and pptx for pictures.
What is left out, or put where it can be kept, is listed on the error output.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図を別の形式または画像で書き出します。
形式は拡張子で決まります。読み込み: %1。
書き出し: %2。画像は png、svg、pdf、html、pptx。
省略された内容や別の場所に移された内容は標準エラー出力に一覧表示します。</translation>
    </message>
    <message>
        <source>The command.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コマンド。</translation>
    </message>
    <message>
        <source>The file to read.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>読み込むファイル。</translation>
    </message>
    <message>
        <source>The file to write.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>書き出すファイル。</translation>
    </message>
    <message>
        <source>Counts what is in a diagram and lists what is off in it.
The exit code is 3 when anything is.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図の内容を数え、問題点を一覧表示します。
問題があるときの終了コードは 3 です。</translation>
    </message>
    <message>
        <source>Writes what is sent round after a meeting: the picture, the causes in the order of what was found out, what is to be done by whom, and a legend.
The ending .html, .pdf or .md tells the format; .md has its picture in a file beside it.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>会議の後に配布する報告書を書き出します。内容は図、判定順の要因、誰が何をするか、凡例です。
形式は拡張子 .html、.pdf、.md で決まります。.md の画像は隣のファイルに入ります。</translation>
    </message>
    <message>
        <source>Names what is off in each file, and why one cannot be read, a line each.
The exit code is 1 when there is anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>各ファイルの問題点と読み込めない理由を 1 行ずつ表示します。
問題があるときの終了コードは 1 です。</translation>
    </message>
    <message>
        <source>The files to look at.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>調べるファイル。</translation>
    </message>
    <message>
        <source>Merges what changed from the base to theirs into ours, subject by subject, as git asks a merge driver to.
What both changed differently is kept as in ours, with a cause that says so below it; the exit code is 1 then.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>git がマージドライバーに求めるとおり、ベースから相手側への変更を項目ごとに自分側へマージします。
双方で異なる変更は自分側のまま残し、その旨を示す要因を下に加えます。そのときの終了コードは 1 です。</translation>
    </message>
    <message>
        <source>The version that both come from.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>双方の元になった版。</translation>
    </message>
    <message>
        <source>The version to merge into; it is replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>マージ先の版。置き換えられます。</translation>
    </message>
    <message>
        <source>The other version.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>もう一方の版。</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を書き込めません: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>%1 was not written: something would be left out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 は書き出されませんでした: 失われる内容があります</translation>
    </message>
    <message>
        <source>Format: %1
</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>形式: %1
</translation>
    </message>
    <message>
        <source>there are conflicts: look for the causes &quot;Merge conflict&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>競合があります: 「マージの競合」という要因を探してください</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --export needs none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ウィンドウを開く画面がありません。--export なら画面は不要です</translation>
    </message>
    <message>
        <source>a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Show the texts that the files in &lt;folder&gt; have, and show them anew when these are changed. For translators.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&lt;folder&gt; にあるファイルの文言を表示し、ファイルが変わると表示し直します。翻訳者向けです。</translation>
    </message>
</context>
<context>
    <name>DetailsForm</name>
    <message>
        <source>Priority:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>優先度:</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>開く</translation>
    </message>
    <message>
        <source>Edit style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイルを編集…</translation>
    </message>
    <message>
        <source>Has a planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限を設定</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限</translation>
    </message>
    <message>
        <source>What there is to say of it; of a cause, the evidence for its verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>この項目についての説明。要因の場合は判定の根拠</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Open the link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンクを開く</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フォロワー</translation>
    </message>
    <message>
        <source>New follower</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>新しいフォロワー</translation>
    </message>
    <message>
        <source>Origin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作成元</translation>
    </message>
    <message>
        <source>several</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>複数の値</translation>
    </message>
    <message numerus="yes">
        <source>%n subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n 項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトル:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>番号:</translation>
    </message>
    <message>
        <source>Verdict:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定:</translation>
    </message>
    <message>
        <source>Votes:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス:</translation>
    </message>
    <message>
        <source>Progress:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>進捗:</translation>
    </message>
    <message>
        <source>Responsible:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者:</translation>
    </message>
    <message>
        <source>Their id:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者 ID:</translation>
    </message>
    <message>
        <source>Planned end:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限:</translation>
    </message>
    <message>
        <source>Link:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンク:</translation>
    </message>
    <message>
        <source>Followers:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フォロワー:</translation>
    </message>
    <message>
        <source>Details:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイル:</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>&amp;Apply</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>元の値に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Created by: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作成者: %1</translation>
    </message>
    <message>
        <source>Created on: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作成日: %1</translation>
    </message>
    <message>
        <source>Edit details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細の編集</translation>
    </message>
</context>
<context>
    <name>DiagramCounts</name>
    <message numerus="yes">
        <source>%n subject(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n 項目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>、%n 項目を選択</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiagramExchange</name>
    <message>
        <source>the text is not encoded as UTF-8, nor in a code page that is known (Windows-1252, GB 18030)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テキストが UTF-8 でも、対応しているコードページ (Windows-1252、GB 18030) でもありません</translation>
    </message>
    <message>
        <source>the text as %1, since it is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テキストを、UTF-8 ではないため %1 として</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タスクの表</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>引用符が閉じていません</translation>
    </message>
    <message>
        <source>there is text behind a closing quote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>閉じ引用符の後にテキストがあります</translation>
    </message>
    <message>
        <source>it has more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>階層が %1 を超えています</translation>
    </message>
    <message>
        <source>that format can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>この形式は読み込み専用です</translation>
    </message>
    <message>
        <source>that format can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>この形式は書き出し専用です</translation>
    </message>
    <message>
        <source>draw.io diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>draw.io の図</translation>
    </message>
    <message>
        <source>All formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべての形式</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 MiB を超えています</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>内容が空です</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>a style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>FreeMind mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>FreeMind マインドマップ</translation>
    </message>
    <message>
        <source>what is encrypted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>暗号化された内容</translation>
    </message>
    <message>
        <source>Icons</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アイコン「%1」を %2 として</translation>
    </message>
    <message>
        <source>an arrow</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>矢印</translation>
    </message>
    <message>
        <source>there are more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>階層が %1 を超えています</translation>
    </message>
    <message>
        <source>there are more than %1 subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目が %1 個を超えています</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Image</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図が含まれていません</translation>
    </message>
    <message>
        <source>Imported diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>インポートした図</translation>
    </message>
    <message>
        <source>Fishbone diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>特性要因図</translation>
    </message>
    <message>
        <source>Markdown outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Markdown アウトライン</translation>
    </message>
    <message>
        <source>the front matter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フロントマター</translation>
    </message>
    <message>
        <source>the comment &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コメント「%1」</translation>
    </message>
    <message>
        <source>the language &quot;%1&quot; of a block of code</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コードブロックの言語「%1」</translation>
    </message>
    <message>
        <source>Mermaid ishikawa diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mermaid 特性要因図 (ishikawa)</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;ishikawa&quot; or &quot;mindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図が「ishikawa」または「mindmap」で始まっていません</translation>
    </message>
    <message>
        <source>settings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>設定</translation>
    </message>
    <message>
        <source>OPML outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OPML アウトライン</translation>
    </message>
    <message>
        <source>Org outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Org アウトライン</translation>
    </message>
    <message>
        <source>text above the outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アウトラインの前のテキスト</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」を %2 として</translation>
    </message>
    <message>
        <source>Labels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as a progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」を進捗として</translation>
    </message>
    <message>
        <source>a quotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>引用</translation>
    </message>
    <message>
        <source>further cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>余分なセル</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;@startmindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図が「@startmindmap」で始まっていません</translation>
    </message>
    <message>
        <source>text beside the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図の外のテキスト</translation>
    </message>
    <message>
        <source>PlantUML mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>PlantUML マインドマップ</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as day/month/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」の日付を 日/月/年 として</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as month/day/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」の日付を 月/日/年 として</translation>
    </message>
    <message>
        <source>cells without a heading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>見出しのないセル</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; as %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%2」の「%1」を %3 として</translation>
    </message>
    <message>
        <source>headings that are repeated</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>重複する見出し</translation>
    </message>
    <message>
        <source>the uuid &quot;%1&quot; a second time</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>重複する uuid「%1」</translation>
    </message>
    <message>
        <source>the subject lies below itself</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目が自分自身の下にあります</translation>
    </message>
    <message>
        <source>there is no column of titles, such as &quot;title&quot;, &quot;summary&quot; or &quot;name&quot;; the columns are %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「title」、「summary」、「name」のようなタイトルの列がありません。列は %1 です</translation>
    </message>
    <message>
        <source>Indented text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>インデント付きテキスト</translation>
    </message>
    <message>
        <source>the sheet &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>シート「%1」</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Excel ブック</translation>
    </message>
    <message>
        <source>the archive has no file &quot;%1&quot;, as workbooks do</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アーカイブに、ブックに必要なファイル「%1」がありません</translation>
    </message>
    <message>
        <source>remarks at cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>セルのコメント</translation>
    </message>
    <message>
        <source>drawings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図形</translation>
    </message>
    <message>
        <source>cells behind column %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 列目より後のセル</translation>
    </message>
    <message>
        <source>there are too many cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>セルが多すぎます</translation>
    </message>
    <message>
        <source>a link within the workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ブック内へのリンク</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイル「%1」</translation>
    </message>
    <message>
        <source>the archive has neither content.json nor content.xml, one of which holds the map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アーカイブに、マップが入っているはずの content.json も content.xml もありません</translation>
    </message>
    <message>
        <source>XMind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>XMind マップ</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>シート</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>境界</translation>
    </message>
    <message>
        <source>a topic of the kind &quot;%1&quot; as a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>種類「%1」のトピックを要因として</translation>
    </message>
    <message>
        <source>content.json: it is no list of sheets</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>content.json: シートのリストではありません</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アイコン「%1」</translation>
    </message>
    <message>
        <source>an arrow &quot;%1&quot; that joins no two topics</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>2 つのトピックを結んでいない矢印「%1」</translation>
    </message>
    <message>
        <source>declarations of entities are not accepted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>エンティティ宣言は使えません</translation>
    </message>
    <message>
        <source>the document begins with &lt;%1&gt;, not with &lt;%2&gt;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ドキュメントの先頭が &lt;%2&gt; ではなく &lt;%1&gt; です</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; is missing, the end of &lt;%1&gt; in line %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%2 行目の &lt;%1&gt; を閉じる &lt;/%1&gt; がありません</translation>
    </message>
    <message>
        <source>it is not a zip archive, as files of this format are (%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>この形式のファイルは zip アーカイブのはずですが、そうではありません (%1)</translation>
    </message>
    <message>
        <source>the archive has more than %1 files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アーカイブのファイルが %1 個を超えています</translation>
    </message>
    <message>
        <source>the archive has &quot;%1&quot; twice</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アーカイブに「%1」が 2 つあります</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>it expands to more than %1 times its size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>展開すると元のサイズの %1 倍を超えます</translation>
    </message>
    <message>
        <source>the map is protected by a password</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>マップはパスワードで保護されています</translation>
    </message>
</context>
<context>
    <name>DiagramMerge</name>
    <message>
        <source>It was changed in ours and deleted in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>自分側で変更、相手側で削除されています。</translation>
    </message>
    <message>
        <source>It was deleted in ours and changed in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>自分側で削除、相手側で変更されています。</translation>
    </message>
    <message>
        <source>Theirs has it below &quot;%1&quot;.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>相手側では「%1」の下にあります。</translation>
    </message>
    <message>
        <source>Its %1 is &quot;%2&quot; in ours and &quot;%3&quot; in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 が自分側では「%2」、相手側では「%3」です。</translation>
    </message>
    <message>
        <source>It was deleted in theirs and has more below it in ours.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>相手側で削除されましたが、自分側では下に内容が追加されています。</translation>
    </message>
    <message>
        <source>It was deleted in ours and has more below it in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>自分側で削除されましたが、相手側では下に内容が追加されています。</translation>
    </message>
    <message>
        <source>It is a second head.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>2 つ目の頭です。</translation>
    </message>
    <message>
        <source>What is below it has another order in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>下の項目の順序が相手側では異なります。</translation>
    </message>
    <message>
        <source>Merge conflict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>マージの競合</translation>
    </message>
</context>
<context>
    <name>DiagramPicture</name>
    <message>
        <source>there is not enough memory for it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>この倍率、サイズ、余白では画像になりません</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg, .pdf or .html</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイル名の末尾は .png、.svg、.pdf、.html のいずれかでなければなりません</translation>
    </message>
    <message>
        <source>the page is too small or too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ページが小さすぎるか大きすぎます</translation>
    </message>
</context>
<context>
    <name>DocumentLoader</name>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図が含まれていません</translation>
    </message>
    <message>
        <source>the program is closing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>プログラムが終了中です</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイルがありません</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>it has no uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uuid がありません</translation>
    </message>
    <message>
        <source>another subject has the same uuid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>別の項目が同じ uuid %1 を持っています</translation>
    </message>
    <message>
        <source>it is the head and has the pid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>頭なのに pid %1 があります</translation>
    </message>
    <message>
        <source>it has no pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>pid がありません</translation>
    </message>
    <message>
        <source>its pid %1 does not name its parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>pid %1 が親のものではありません</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトルがありません</translation>
    </message>
    <message>
        <source>its status %1 is unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス %1 が不明です</translation>
    </message>
    <message>
        <source>its progress %1 is not within 0 and 100</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>進捗 %1 が 0 から 100 の範囲にありません</translation>
    </message>
    <message>
        <source>it is to end before it was created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限が作成日より前です</translation>
    </message>
    <message>
        <source>its link %1 is no URL</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンク %1 が URL ではありません</translation>
    </message>
    <message>
        <source>head</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>頭</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトル: %1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目: %1</translation>
    </message>
    <message>
        <source>Main bones: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>大骨: %1</translation>
    </message>
    <message>
        <source>Levels: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>階層: %1</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンク: %1</translation>
    </message>
    <message>
        <source>Own styles: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>個別のスタイル: %1</translation>
    </message>
    <message>
        <source>Nothing is off.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>問題はありません。</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>問題: %1</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Fishbone diagrams (*.json);;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>特性要因図 (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here. Replace it, so that those changes are lost?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 は、ここで開くか保存した後で別のプログラムによって変更されました。置き換えてその変更を破棄しますか？</translation>
    </message>
    <message>
        <source>Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>%1 would not be recognized as a diagram. Its name should end in .json; &quot;Export as&quot; writes other formats.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 は図として認識されなくなります。名前の末尾は .json にしてください。ほかの形式には「別の形式でエクスポート」を使います。</translation>
    </message>
    <message>
        <source>Save as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コピーを保存</translation>
    </message>
    <message>
        <source>Copy written to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コピーを %1 に保存しました</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を書き込めません: %2。</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を保存しました</translation>
    </message>
</context>
<context>
    <name>DocumentTabs</name>
    <message>
        <source>Open documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>開いているドキュメント</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Not saved to a file yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>まだファイルに保存されていません</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close &amp;others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ほかを閉じる(&amp;O)</translation>
    </message>
    <message>
        <source>Copy &amp;path</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>パスをコピー(&amp;P)</translation>
    </message>
</context>
<context>
    <name>DrawingFilter</name>
    <message>
        <source>left out by the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フィルターの対象外</translation>
    </message>
    <message>
        <source>leads to what the filter shows</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フィルターの結果に至る項目</translation>
    </message>
</context>
<context>
    <name>DrawingPrinter</name>
    <message>
        <source>%1 – page %2 of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 – %2 / %3 ページ</translation>
    </message>
</context>
<context>
    <name>EditAttributes</name>
    <message>
        <source>Edit attributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>属性の編集</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Find and replace…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検索と置換(&amp;F)…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select the &amp;branch</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>枝を選択(&amp;B)</translation>
    </message>
    <message>
        <source>Select the sib&amp;lings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>兄弟項目を選択(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>子項目を追加(&amp;C)</translation>
    </message>
    <message>
        <source>Subject &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>前に項目を追加(&amp;B)</translation>
    </message>
    <message>
        <source>Subject &amp;after</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>後に項目を追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Parent subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>親項目を追加(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Free subject (a new diagram)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>独立項目を追加 (新しい図)(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Sub-task…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>サブタスク(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Link to…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンク先を設定(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンクを開く(&amp;O)</translation>
    </message>
    <message>
        <source>Remove l&amp;ink</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンクを削除(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイル(&amp;Y)…</translation>
    </message>
    <message>
        <source>Remove s&amp;tyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイルを削除(&amp;T)</translation>
    </message>
    <message>
        <source>New sub-task</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>新しいサブタスク</translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトル:</translation>
    </message>
</context>
<context>
    <name>EditDelete</name>
    <message>
        <source>Delete selecteds</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目の削除</translation>
    </message>
    <message>
        <source>Delete current selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目の削除</translation>
    </message>
</context>
<context>
    <name>EditModify</name>
    <message>
        <source>Modify Item</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目の編集</translation>
    </message>
</context>
<context>
    <name>EditMove</name>
    <message>
        <source>Move subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目の移動</translation>
    </message>
</context>
<context>
    <name>EditPaste</name>
    <message>
        <source>Paste from clipborad</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>クリップボードからの貼り付け</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>No diagram is open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>開いている図はありません</translation>
    </message>
    <message>
        <source>Files can also be dragged into this window.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイルをこのウィンドウにドラッグすることもできます。</translation>
    </message>
    <message>
        <source>Opened lately:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>最近開いたファイル:</translation>
    </message>
</context>
<context>
    <name>ExchangeReport</name>
    <message>
        <source>left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>省略: %1</translation>
    </message>
    <message>
        <source>put into the details: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細に記載: %1</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>読み替え: %1</translation>
    </message>
    <message>
        <source>appearance left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>外観を省略: %1</translation>
    </message>
    <message>
        <source>%1 (%2 times, first in line %3)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (%2 回、最初は %3 行目)</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (%2 回)</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (%2 行目)</translation>
    </message>
    <message>
        <source>other things</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>ExportCommands</name>
    <message>
        <source>&amp;Export picture…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像をエクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>E&amp;xport as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>別の形式でエクスポート(&amp;X)…</translation>
    </message>
    <message>
        <source>Copy as p&amp;icture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像としてコピー(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>印刷(&amp;P)…</translation>
    </message>
    <message>
        <source>Print previe&amp;w…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>印刷プレビュー(&amp;W)…</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を書き出しました</translation>
    </message>
    <message>
        <source>%1 was not written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 は書き出されませんでした</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像のエクスポート</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を書き込めません: %2。</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を書き出しています…</translation>
    </message>
    <message>
        <source>Copied as a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像としてコピーしました</translation>
    </message>
    <message>
        <source>Not copied as a picture: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像としてコピーできませんでした: %1</translation>
    </message>
    <message>
        <source>PowerPoint slide (*.%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>PowerPoint スライド (*.%1)</translation>
    </message>
    <message>
        <source>Export as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>別の形式でエクスポート</translation>
    </message>
    <message>
        <source>its ending tells none of the formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>拡張子から形式を判別できません</translation>
    </message>
    <message>
        <source>Nothing was printed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>何も印刷されませんでした</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>&amp;Light, as on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ライト (紙と同じ)(&amp;L)</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像のエクスポート</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>参照(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイル(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>背景(&amp;B):</translation>
    </message>
    <message>
        <source>Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画面と同じ</translation>
    </message>
    <message>
        <source>White</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>白</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>透明</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf *.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画像 (*.png *.svg *.pdf *.html)</translation>
    </message>
    <message>
        <source>The file name must end in .png, .svg, .pdf or .html.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイル名の末尾は .png、.svg、.pdf、.html のいずれかにしてください。</translation>
    </message>
    <message>
        <source>A page for the browser needs the clear look.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ブラウザー用のページには「明瞭」の外観が必要です。</translation>
    </message>
    <message>
        <source>This cannot be exported: %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>エクスポートできません: %1。</translation>
    </message>
    <message>
        <source>%1 Use %2, which fits?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 収まる値の %2 を使いますか？</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 は既にあります。置き換えますか？</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>&amp;New</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>新規作成(&amp;N)</translation>
    </message>
    <message>
        <source>New from the &amp;example</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>サンプルから新規作成(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Welcome diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ウェルカム図(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>インポート(&amp;I)…</translation>
    </message>
    <message>
        <source>Open &amp;URL…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL を開く(&amp;U)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Save a cop&amp;y…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コピーを保存(&amp;Y)…</translation>
    </message>
    <message>
        <source>Revert to &amp;file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイルの状態に戻す(&amp;F)</translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべて保存(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Reopen &amp;documents at the start</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>起動時にドキュメントを再び開く(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を読み込みました</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を開けません: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 は読み込まれませんでした</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>開く</translation>
    </message>
    <message>
        <source>Revert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイルの状態に戻す</translation>
    </message>
    <message>
        <source>Give up all changes of %1 since it was saved?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を保存した後の変更をすべて破棄しますか？</translation>
    </message>
</context>
<context>
    <name>FileConflict</name>
    <message>
        <source>Another program has changed %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 が別のプログラムによって変更されました。</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>再読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>自分の変更を残す(&amp;K)</translation>
    </message>
    <message>
        <source>Save &amp;under another name…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>別の名前で保存(&amp;U)…</translation>
    </message>
    <message>
        <source>%1 was deleted, moved or renamed by another program.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 が別のプログラムによって削除または移動されたか、名前が変更されました。</translation>
    </message>
    <message>
        <source>Save agai&amp;n</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>もう一度保存(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>隠す(&amp;H)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>Untitled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>無題</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス指定なし</translation>
    </message>
    <message>
        <source>Any verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定指定なし</translation>
    </message>
    <message>
        <source>Text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Any votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数指定なし</translation>
    </message>
    <message>
        <source>Votes ≥ </source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数 ≥ </translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限超過</translation>
    </message>
    <message>
        <source>Fold the others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ほかを折りたたむ</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フィルターを閉じる</translation>
    </message>
    <message>
        <source>Filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Text in title, number or details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトル、番号、詳細のテキスト</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者</translation>
    </message>
    <message>
        <source>Least number of votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>最小票数</translation>
    </message>
    <message>
        <source>Anybody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>全員</translation>
    </message>
    <message>
        <source>Nobody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者なし</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Finder</name>
    <message>
        <source>No match</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>一致なし</translation>
    </message>
    <message>
        <source>Match %1 of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%2 件中 %1 件目</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n text(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n か所のテキストの置換</numerusform>
        </translation>
    </message>
    <message>
        <source>Only titles and numbers can be replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>置換できるのはタイトルと番号だけです。</translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) replaced</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n か所のテキストを置換しました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FishInfo</name>
    <message>
        <source>no model shows the document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ドキュメントを表示しているモデルがありません</translation>
    </message>
    <message>
        <source>the diagram nests too deep to be read again</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図の入れ子が深すぎて、再び読み込めません</translation>
    </message>
    <message>
        <source>Save As</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been modified.
Do you want to save your changes?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」は変更されています。
変更を保存しますか？</translation>
    </message>
    <message>
        <source>FishInfo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>保存されていない変更</translation>
    </message>
    <message>
        <source>fish%1.json</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>fish%1.json</translation>
    </message>
</context>
<context>
    <name>FishModel</name>
    <message>
        <source>自由主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>独立項目</translation>
    </message>
    <message>
        <source>the reply took too long or was too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>応答に時間がかかりすぎたか、応答が大きすぎます</translation>
    </message>
    <message>
        <source>there is no document to load it into</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>読み込み先のドキュメントがありません</translation>
    </message>
    <message>
        <source>个无父任务/共</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>件は親タスクなし/全</translation>
    </message>
    <message>
        <source>个任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>件</translation>
    </message>
</context>
<context>
    <name>HelpCommands</name>
    <message>
        <source>&amp;Keys…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ショートカットキー(&amp;K)…</translation>
    </message>
    <message>
        <source>&amp;About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fishbone について(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Qt について(&amp;Q)</translation>
    </message>
    <message>
        <source>Version %1, library %2&lt;br&gt;Qt %3, built with %4&lt;br&gt;%5</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>バージョン %1、ライブラリ %2&lt;br&gt;Qt %3、ビルド時 %4&lt;br&gt;%5</translation>
    </message>
    <message>
        <source>About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fishbone について</translation>
    </message>
    <message>
        <source>Draws cause-and-effect diagrams of tasks.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タスクの特性要因図を描きます。</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Fishbone authors, under the MIT License</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copyright © 2026 The Fishbone authors、MIT ライセンス</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>履歴</translation>
    </message>
    <message>
        <source>(beginning)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(最初の状態)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 of %n)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 (%n 回中 %2 回目)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 (%n 回)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HitList</name>
    <message>
        <source>Found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Will be</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>置換後</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>HtmlPicture</name>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検索</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべて展開</translation>
    </message>
    <message>
        <source>Fold</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Fold to the categories</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>大骨まで折りたたむ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Fit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>全体</translation>
    </message>
    <message>
        <source>Show all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>全体を表示</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>特性要因図。矢印キーで移動、Enter キーで詳細を表示、スペースキーで折りたたみます。</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>%1: %2 left out, %3 put into details.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1: 省略 %2 件、詳細に記載 %3 件。</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>インポート</translation>
    </message>
</context>
<context>
    <name>InsertBack</name>
    <message>
        <source>Insert subject back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>後の項目の追加</translation>
    </message>
</context>
<context>
    <name>InsertChild</name>
    <message>
        <source>Insert child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>子項目の追加</translation>
    </message>
</context>
<context>
    <name>InsertFree</name>
    <message>
        <source>Insert free subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>独立項目の追加</translation>
    </message>
</context>
<context>
    <name>InsertFront</name>
    <message>
        <source>Insert subject front</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>前の項目の追加</translation>
    </message>
</context>
<context>
    <name>InsertParent</name>
    <message>
        <source>Insert subject as parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>親項目の追加</translation>
    </message>
</context>
<context>
    <name>JsonDiagram</name>
    <message>
        <source>it is a JSON list, not a diagram, which is an object with a &quot;title&quot; and &quot;children&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>JSON のリストです。図は「title」と「children」を持つオブジェクトでなければなりません</translation>
    </message>
    <message>
        <source>it is JSON of another kind: a diagram has a &quot;title&quot; and &quot;children&quot;, this has %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>別の種類の JSON です: 図には「title」と「children」がありますが、これには %1 があります</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;title&quot; is no text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>別の種類の JSON です: 「title」がテキストではありません</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;children&quot; are no list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>別の種類の JSON です: 「children」がリストではありません</translation>
    </message>
</context>
<context>
    <name>JsonErrors</name>
    <message>
        <source>a name in quotes or } is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>引用符で囲んだ名前または } がありません</translation>
    </message>
    <message>
        <source>the colon behind a name is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前の後にコロンがありません</translation>
    </message>
    <message>
        <source>a comma or ] is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コンマまたは ] がありません</translation>
    </message>
    <message>
        <source>the comma behind a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>値の後にコンマがありません</translation>
    </message>
    <message>
        <source>a text in quotes, a number, true, false, null, { or [ is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>引用符で囲んだテキスト、数値、true、false、null、{ または [ がありません</translation>
    </message>
    <message>
        <source>it ends with a number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>数値で終わっています</translation>
    </message>
    <message>
        <source>a backslash begins no escape sequence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>バックスラッシュの後がエスケープシーケンスではありません</translation>
    </message>
    <message>
        <source>a text is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>UTF-8 でないテキストがあります</translation>
    </message>
    <message>
        <source>the quote at the end of a text is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テキストの終わりに引用符がありません</translation>
    </message>
    <message>
        <source>a name or a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前または値がありません</translation>
    </message>
    <message>
        <source>it nests too deep</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>入れ子が深すぎます</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>there is more behind its end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>終わりの後にまだ内容があります</translation>
    </message>
    <message>
        <source>it is not a JSON document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>JSON ドキュメントではありません</translation>
    </message>
    <message>
        <source>it is not a JSON document (line %1: %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>JSON ドキュメントではありません (%1 行目: %2)</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ショートカットキー</translation>
    </message>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検索</translation>
    </message>
    <message>
        <source>Command</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>コマンド</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lang&amp;uage</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>言語 Language(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;System language</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>システムの言語(&amp;S)</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンクを開く</translation>
    </message>
    <message>
        <source>This link is neither a web page nor a mail address. Open it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>このリンクはウェブページでもメールアドレスでもありません。開きますか？</translation>
    </message>
</context>
<context>
    <name>LoadFailure</name>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>its ending is none of those that can be read: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>読み込める形式の拡張子ではありません: %1</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>内容が空です</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Loading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>%1 received</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を受信しました</translation>
    </message>
</context>
<context>
    <name>LookChoice</name>
    <message>
        <source>%1 or %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 または %2</translation>
    </message>
    <message>
        <source>Draw in the &lt;look&gt; %1; the first one is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>外観 &lt;look&gt; で描きます: %1。既定は最初のものです。</translation>
    </message>
    <message>
        <source>Arrange the drawing for &lt;page&gt;: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm. A PDF has a page of that size.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図を &lt;page&gt; に合わせて配置します: 16:9、A4、A3、Letter、または 1920x1080 や 297x210mm のようなサイズ。PDF のページはそのサイズになります。</translation>
    </message>
    <message>
        <source>Explain the icons below the drawing, which is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図の下でアイコンを説明します (既定)。</translation>
    </message>
    <message>
        <source>Leave out the explanation of the icons.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アイコンの説明を省きます。</translation>
    </message>
    <message>
        <source>Draw in &lt;colours&gt;: colour (the default), warm, cool, gray or dark.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>配色 &lt;colours&gt; で描きます: colour (既定)、warm、cool、gray、dark。</translation>
    </message>
    <message>
        <source>Draw the head on the &lt;side&gt;: right (the default) or left.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>頭を &lt;side&gt; 側に描きます: right (右、既定) または left (左)。</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 に指定できるのは %2 です (指定値: 「%3」)</translation>
    </message>
    <message>
        <source>--%1 needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 には「明瞭」の外観が必要です</translation>
    </message>
    <message>
        <source>colour, warm, cool, gray or dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>colour、warm、cool、gray、または dark</translation>
    </message>
    <message>
        <source>left or right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>left または right</translation>
    </message>
    <message>
        <source>16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>16:9、A4、A3、Letter、または 1920x1080 や 297x210mm のようなサイズ</translation>
    </message>
</context>
<context>
    <name>LookCommands</name>
    <message>
        <source>Look: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>外観: %1</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>外観(&amp;K)</translation>
    </message>
    <message>
        <source>Arrang&amp;e for page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ページに合わせて配置(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画面(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>配色(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Take off all own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>個別の色とスタイルをすべて解除(&amp;T)</translation>
    </message>
    <message numerus="yes">
        <source>%n subject(s) changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n 項目を変更しました</numerusform>
        </translation>
    </message>
    <message>
        <source>No subject has a colour or a style of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>個別の色やスタイルを持つ項目はありません</translation>
    </message>
    <message>
        <source>Lines of &amp;titles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトルの行(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Not broken</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>折り返さない(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Long</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>長い(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>中くらい(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Short</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>短い(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Bones on both sides</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>骨を両側に(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Head on the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>頭を左に(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>凡例(&amp;L)</translation>
    </message>
</context>
<context>
    <name>LookInfo</name>
    <message>
        <source>&amp;Clear</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>明瞭(&amp;C)</translation>
    </message>
    <message>
        <source>Cl&amp;assic</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>クラシック(&amp;A)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Float</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>切り離す</translation>
    </message>
    <message>
        <source>Takes the panel out of the window, or back into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>パネルをウィンドウから切り離すか、ウィンドウに戻します</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Closes the panel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>パネルを閉じます</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Filt&amp;er…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フィルター(&amp;E)…</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細</translation>
    </message>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Overview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>全体図</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策</translation>
    </message>
    <message>
        <source>Shown be&amp;fore</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>以前に表示した図(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>パネル(&amp;P)</translation>
    </message>
    <message>
        <source>Nothing opens %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を開けるプログラムがありません</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) moved to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n 個のタスクを %1 に移動しました</numerusform>
        </translation>
    </message>
    <message>
        <source>the top</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>最上位</translation>
    </message>
    <message>
        <source>%1[*] – Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1[*] – Fishbone</translation>
    </message>
    <message>
        <source>Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fishbone</translation>
    </message>
</context>
<context>
    <name>MappingDialog</name>
    <message>
        <source>Import %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 のインポート</translation>
    </message>
    <message>
        <source>Read as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>読み取り方</translation>
    </message>
    <message>
        <source>What the columns stand for, with the first rows of the table:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>各列の意味と、表の最初の数行:</translation>
    </message>
    <message>
        <source>Read &quot;%1&quot; as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」の読み取り方</translation>
    </message>
</context>
<context>
    <name>MarkCommands</name>
    <message>
        <source>&amp;Suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>疑いあり(&amp;S)</translation>
    </message>
    <message>
        <source>Being &amp;checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検証中(&amp;C)</translation>
    </message>
    <message>
        <source>Con&amp;firmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>確認済み(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>除外(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;oot cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>根本原因(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;No verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定なし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>待機中(&amp;W)</translation>
    </message>
    <message>
        <source>Waiting for &amp;approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>承認待ち(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>進行中(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>Finished &amp;late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>遅れて完了(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>延期(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>中止(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータスなし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;1 (highest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>1 (最高)(&amp;1)</translation>
    </message>
    <message>
        <source>&amp;2 (high)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>2 (高)(&amp;2)</translation>
    </message>
    <message>
        <source>&amp;3 (medium)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>3 (中)(&amp;3)</translation>
    </message>
    <message>
        <source>&amp;4 (low)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4 (低)(&amp;4)</translation>
    </message>
    <message>
        <source>&amp;5 (lowest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>5 (最低)(&amp;5)</translation>
    </message>
    <message>
        <source>&amp;No priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>優先度なし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>青(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>青緑(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>緑(&amp;G)</translation>
    </message>
    <message>
        <source>Bro&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>茶(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Orange</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>オレンジ(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>赤(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>紫(&amp;P)</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>グレー(&amp;E)</translation>
    </message>
    <message>
        <source>Mar&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>マーク(&amp;K)</translation>
    </message>
    <message>
        <source>Mark at the bo&amp;ne</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>骨の横でマーク(&amp;N)</translation>
    </message>
    <message>
        <source>R&amp;esponsible…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者(&amp;E)…</translation>
    </message>
    <message>
        <source>Change verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定の変更</translation>
    </message>
    <message>
        <source>Vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>投票</translation>
    </message>
    <message>
        <source>One vote &amp;more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>1 票増やす(&amp;M)</translation>
    </message>
    <message>
        <source>One vote &amp;less</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>1 票減らす(&amp;L)</translation>
    </message>
    <message>
        <source>Sort it and its siblings &amp;by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>兄弟項目を票数順に並べ替え(&amp;B)</translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス(&amp;T)</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータスの変更</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>優先度(&amp;P)</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>優先度の変更</translation>
    </message>
    <message>
        <source>Colo&amp;ur</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>色(&amp;U)</translation>
    </message>
    <message>
        <source>Change colour</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>色の変更</translation>
    </message>
    <message>
        <source>That of the p&amp;alette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>配色の色(&amp;A)</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>その他(&amp;H)…</translation>
    </message>
    <message>
        <source>Colour of the bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>骨の色</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者</translation>
    </message>
    <message>
        <source>Who is responsible?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者は誰ですか？</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者の変更</translation>
    </message>
    <message>
        <source>Sort by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数順の並べ替え</translation>
    </message>
    <message>
        <source>Sorted by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数順に並べ替えました</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>不明</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>中止</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>完了</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>遅れて完了</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>延期</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>進行中</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>待機中</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>承認待ち</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>疑いあり</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検証中</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>除外</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>根本原因</translation>
    </message>
</context>
<context>
    <name>MeetingReport</name>
    <message>
        <source>it may be a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>要因の可能性がある</translation>
    </message>
    <message>
        <source>somebody is looking into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検証を進めている</translation>
    </message>
    <message>
        <source>it contributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>影響している</translation>
    </message>
    <message>
        <source>it does not contribute</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>影響していない</translation>
    </message>
    <message>
        <source>all comes from it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべてがここから生じている</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>要因の順位</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>要因</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数</translation>
    </message>
    <message>
        <source>Evidence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>根拠</translation>
    </message>
    <message>
        <source>No cause has a verdict or votes.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定や票のある要因はありません。</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者未定</translation>
    </message>
    <message>
        <source>Action</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (期限超過)</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>凡例</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>意味</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策</translation>
    </message>
    <message>
        <source>Nobody is to do anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>実施する対策はありません。</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>位置</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限超過</translation>
    </message>
    <message>
        <source>yes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>はい</translation>
    </message>
    <message>
        <source>its name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前の末尾は .html、.pdf、.md のいずれかでなければなりません</translation>
    </message>
    <message>
        <source>its name must end in .csv or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>名前の末尾は .csv または .md でなければなりません</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>編集</translation>
    </message>
    <message>
        <source>Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目</translation>
    </message>
    <message>
        <source>View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>Minimap</name>
    <message>
        <source>Overview of the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>全体図</translation>
    </message>
</context>
<context>
    <name>ModifyDelLink</name>
    <message>
        <source>Delete link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンクの削除</translation>
    </message>
</context>
<context>
    <name>ModifyLinkTo</name>
    <message>
        <source>Modify link to</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンクの変更</translation>
    </message>
</context>
<context>
    <name>ModifyName</name>
    <message>
        <source>Modify subject name</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目の名前の変更</translation>
    </message>
</context>
<context>
    <name>MoveCommands</name>
    <message>
        <source>Move &amp;up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>下へ移動(&amp;W)</translation>
    </message>
    <message>
        <source>Pro&amp;mote (beside its parent)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>階層を上げる (親の隣へ)(&amp;M)</translation>
    </message>
    <message>
        <source>D&amp;emote (below the one before)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>階層を下げる (前の項目の下へ)(&amp;E)</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>&amp;Colours</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>カラー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Warm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>暖色(&amp;W)</translation>
    </message>
    <message>
        <source>C&amp;ool</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>寒色(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>グレー(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ダーク(&amp;D)</translation>
    </message>
</context>
<context>
    <name>PasteDialog</name>
    <message>
        <source>Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Lines</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テキストの行</translation>
    </message>
    <message>
        <source>Lines with links and emphasis</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンクと強調のある行</translation>
    </message>
    <message>
        <source>Rows of a table</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>表の行</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Read as:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>読み取り方(&amp;R):</translation>
    </message>
</context>
<context>
    <name>PenSelect</name>
    <message>
        <source>NoPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>線なし</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>実線</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>破線</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>点線</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>一点鎖線</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>二点鎖線</translation>
    </message>
    <message>
        <source>FlatCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>平ら</translation>
    </message>
    <message>
        <source>SquareCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>四角</translation>
    </message>
    <message>
        <source>RoundCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>丸</translation>
    </message>
    <message>
        <source>MiterJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>とがり</translation>
    </message>
    <message>
        <source>BevelJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>面取り</translation>
    </message>
    <message>
        <source>RoundJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>丸</translation>
    </message>
    <message>
        <source>PenWidth</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>太さ:</translation>
    </message>
    <message>
        <source>PenStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>線種:</translation>
    </message>
    <message>
        <source>PenCapStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>線端:</translation>
    </message>
    <message>
        <source>PenJoinStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>角:</translation>
    </message>
    <message>
        <source>PenColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>色:</translation>
    </message>
    <message>
        <source>Pen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ペン</translation>
    </message>
    <message>
        <source>Color</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1; it fits at a scale of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1。倍率 %2 なら収まります</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>この倍率、サイズ、余白では画像になりません</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>描くものがありません</translation>
    </message>
    <message>
        <source>a drawing without height or width needs a margin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>高さまたは幅のない図には余白が必要です</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg or .pdf</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイル名の末尾は .png、.svg、.pdf のいずれかでなければなりません</translation>
    </message>
    <message>
        <source>a picture of %1 × %2 is too large: %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2 の画像は大きすぎます: %3</translation>
    </message>
    <message>
        <source>a PDF has at most %1 points (1/72 inch) on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>PDF の一辺は最大 %1 ポイント (1/72 インチ) です</translation>
    </message>
    <message>
        <source>a PNG has at most %1 pixels on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>PNG の一辺は最大 %1 ピクセルです</translation>
    </message>
    <message>
        <source>its pixels would take more than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ピクセルデータが %1 MiB を超えます</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>an SVG of it would have more than %1 MiB; a PDF is smaller</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>SVG では %1 MiB を超えます。PDF のほうが小さくなります</translation>
    </message>
    <message>
        <source>a side has at most %1 units</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>一辺は最大 %1 単位です</translation>
    </message>
    <message>
        <source>there is no such format</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>そのような形式はありません</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>the drawing cannot be encoded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図をエンコードできません</translation>
    </message>
</context>
<context>
    <name>PictureLevelFields</name>
    <message>
        <source>As shown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>表示どおり</translation>
    </message>
    <message>
        <source>All levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべての階層</translation>
    </message>
    <message>
        <source>Levels below the main bones:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>大骨より下の階層数:</translation>
    </message>
    <message>
        <source>Levels below the main bones</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>大骨より下の階層数</translation>
    </message>
    <message>
        <source>&amp;Expanded:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>展開(&amp;E):</translation>
    </message>
</context>
<context>
    <name>PictureLookFields</name>
    <message>
        <source>Le&amp;gend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>凡例(&amp;G)</translation>
    </message>
    <message>
        <source>Loo&amp;k:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>外観(&amp;K):</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>画面と同じ</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ページ(&amp;P):</translation>
    </message>
    <message>
        <source>On the right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>右側</translation>
    </message>
    <message>
        <source>On the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>左側</translation>
    </message>
    <message>
        <source>Pale&amp;tte:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>配色(&amp;T):</translation>
    </message>
    <message>
        <source>Hea&amp;d:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>頭(&amp;D):</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>PictureSizeFields</name>
    <message>
        <source> px</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> px</translation>
    </message>
    <message>
        <source>Sc&amp;ale:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>倍率(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>高さ(&amp;H):</translation>
    </message>
    <message>
        <source>A page of %1 × %2 mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2 mm のページ</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2 ピクセル</translation>
    </message>
    <message>
        <source>&amp;Use %1, which fits</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>収まる値の %1 を使う(&amp;U)</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Arranged for the paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>用紙に合わせて配置</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>凡例</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>印刷プレビュー</translation>
    </message>
    <message>
        <source>Size on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>用紙上のサイズ</translation>
    </message>
    <message>
        <source>Fit one page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>1 ページに収める</translation>
    </message>
    <message>
        <source>Fit the width of the page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ページの幅に合わせる</translation>
    </message>
    <message>
        <source>Scale</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Scale in percent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>倍率 (パーセント)</translation>
    </message>
    <message>
        <source>Look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>外観</translation>
    </message>
    <message>
        <source>Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>配色</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>印刷中…</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n ページ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing to print, or more than %n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>印刷するものがないか、%n ページを超えています</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, at %2 % so that no title is cut</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1、タイトルが切れないよう %2 % に縮小</translation>
    </message>
</context>
<context>
    <name>PriorityBox</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>新建子任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>新しいサブタスク</translation>
    </message>
    <message>
        <source>查看详情</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>用鱼骨图详细查看</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>独立した図として表示</translation>
    </message>
    <message>
        <source>编辑节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目を編集</translation>
    </message>
    <message>
        <source>新建子节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>子項目を追加</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目を削除</translation>
    </message>
</context>
<context>
    <name>RankedList</name>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>要因の順位</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>要因</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>&amp;Recent files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(まだありません)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>一覧を消去(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Reco&amp;ver documents…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ドキュメントを復元(&amp;V)…</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>復元するものはありません。</translation>
    </message>
    <message>
        <source>%1 recovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を復元しました</translation>
    </message>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ドキュメントの復元</translation>
    </message>
    <message>
        <source>%1 cannot be recovered from %2: %3.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を %2 から復元できません: %3。</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ドキュメントの復元</translation>
    </message>
    <message>
        <source>The program did not end well the last time. These documents have changes that were not saved:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>前回、プログラムは正常に終了しませんでした。次のドキュメントに保存されていない変更があります:</translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>保存されていない変更のあるドキュメント</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>破棄(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>破棄</translation>
    </message>
    <message numerus="yes">
        <source>Give up the changes of %n document(s) for good?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n 個のドキュメントの変更を完全に破棄しますか？</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecoveryModel</name>
    <message>
        <source>Document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Autosaved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>自動保存日時</translation>
    </message>
    <message>
        <source>Size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(未保存)</translation>
    </message>
</context>
<context>
    <name>ReplaceFindDialog</name>
    <message>
        <source>Finder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検索と置換</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検索する文字列:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>置換後の文字列:</translation>
    </message>
    <message>
        <source>Case sensitive</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>大文字と小文字を区別する</translation>
    </message>
    <message>
        <source>Find</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検索</translation>
    </message>
    <message>
        <source>Replace</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>置換</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべて置換</translation>
    </message>
    <message>
        <source>Column</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>検索対象</translation>
    </message>
    <message>
        <source>title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>UUID</translation>
    </message>
    <message>
        <source>showid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>番号</translation>
    </message>
    <message>
        <source>pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>親タスクの UUID</translation>
    </message>
    <message>
        <source>Not found key word %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「%1」は見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Meetin&amp;g report…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>会議報告書(&amp;G)…</translation>
    </message>
    <message>
        <source>Meeting report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>会議報告書</translation>
    </message>
    <message>
        <source>Ta&amp;ble of actions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策の表(&amp;B)…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策</translation>
    </message>
    <message>
        <source>Page for the browser (*.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ブラウザー用のページ (*.html)</translation>
    </message>
    <message>
        <source>Markdown and a picture (*.md)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Markdown と画像 (*.md)</translation>
    </message>
    <message>
        <source>actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>表計算ソフト用の表 (*.csv)</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を書き出しました</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を書き込めません: %2。</translation>
    </message>
    <message>
        <source>Print act&amp;ions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策の印刷(&amp;Z)…</translation>
    </message>
</context>
<context>
    <name>SlideExport</name>
    <message>
        <source>Fishbone diagram &quot;%1&quot; with %2 causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>特性要因図「%1」、要因 %2 件</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>描くものがありません</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>対策</translation>
    </message>
</context>
<context>
    <name>SourceDialogs</name>
    <message>
        <source>Fishbone diagrams (*.json);;%1;;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>特性要因図 (*.json);;%1;;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>開く</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Loading %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を読み込んでいます…</translation>
    </message>
</context>
<context>
    <name>SpearStyleDialog</name>
    <message>
        <source>Spear style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>InheritanceParent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>親のスタイルを継承</translation>
    </message>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>ssNormal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>標準</translation>
    </message>
    <message>
        <source>ssSelected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>選択中</translation>
    </message>
    <message>
        <source>ssHovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ポインターの下</translation>
    </message>
    <message>
        <source>ssLinked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>移動先</translation>
    </message>
    <message>
        <source>Preview 预览测试 ABC xyz</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>プレビュー 見本 ABC xyz</translation>
    </message>
    <message>
        <source>textCount</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>表示文字数:</translation>
    </message>
    <message>
        <source>SpearState</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>状態:</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>親</translation>
    </message>
    <message>
        <source>Set TextFont</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>文字のフォント…</translation>
    </message>
    <message>
        <source>Set TextColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>文字の色…</translation>
    </message>
    <message>
        <source>Set TextBkColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>文字の背景色…</translation>
    </message>
    <message>
        <source>Set BroderPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>枠線のペン…</translation>
    </message>
</context>
<context>
    <name>StepNames</name>
    <message numerus="yes">
        <source>%1 “%2” and %n more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1「%2」ほか %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StringListEditor</name>
    <message>
        <source>Add</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>SubjectClipboard</name>
    <message>
        <source>cannot paste the text: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テキストを貼り付けられません: %1</translation>
    </message>
</context>
<context>
    <name>SubjectStyles</name>
    <message>
        <source>The subject looks as the one above it, also when the style of that is changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目は上の項目と同じ見た目になり、そのスタイルの変更にも従います</translation>
    </message>
    <message>
        <source>Change style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイルの変更</translation>
    </message>
    <message>
        <source>Remove style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>スタイルの削除</translation>
    </message>
    <message>
        <source>Take off own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>個別の色とスタイルの解除</translation>
    </message>
</context>
<context>
    <name>SubjectTree</name>
    <message>
        <source>Filter by title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトルで絞り込み</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>項目</translation>
    </message>
</context>
<context>
    <name>TabButtons</name>
    <message>
        <source>Scroll left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>右へスクロール</translation>
    </message>
</context>
<context>
    <name>TabCommands</name>
    <message>
        <source>Next &amp;tab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>次のタブ(&amp;T)</translation>
    </message>
    <message>
        <source>Previous t&amp;ab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>前のタブ(&amp;A)</translation>
    </message>
</context>
<context>
    <name>TableMapping</name>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Title of one level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>1 階層分のタイトル</translation>
    </message>
    <message>
        <source>Id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>Uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>UUID</translation>
    </message>
    <message>
        <source>Short id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>短縮 ID</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>親</translation>
    </message>
    <message>
        <source>Level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>階層</translation>
    </message>
    <message>
        <source>Outline number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>アウトライン番号</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Manager</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者</translation>
    </message>
    <message>
        <source>Manager&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者 ID</translation>
    </message>
    <message>
        <source>Creator</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Creator&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作成者 ID</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>フォロワー</translation>
    </message>
    <message>
        <source>Created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作成日</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Details text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>詳細テキスト</translation>
    </message>
    <message>
        <source>Type</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>種類</translation>
    </message>
    <message>
        <source>Completed on</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>完了日</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>判定</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>票数</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>New from &amp;template…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレートから新規作成(&amp;T)…</translation>
    </message>
    <message>
        <source>Save as te&amp;mplate…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレートとして保存(&amp;M)…</translation>
    </message>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレートから新規作成</translation>
    </message>
    <message>
        <source>%1 is no template: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 はテンプレートではありません: %2。</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレートとして保存</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレートの名前:</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレート %1 は既にあります。置き換えますか？</translation>
    </message>
    <message>
        <source>File &gt; New from template offers %1 now</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>「ファイル &gt; テンプレートから新規作成」で %1 を選べるようになりました</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>TemplateGallery</name>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレートから新規作成</translation>
    </message>
    <message>
        <source>Templates</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作成(&amp;R)</translation>
    </message>
    <message>
        <source>From a &amp;file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ファイルから(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the template %1?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>テンプレート %1 を削除しますか？</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>空</translation>
    </message>
    <message>
        <source>6M: production</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>6M (5M1E): 製造</translation>
    </message>
    <message>
        <source>4S: services</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4S: サービス</translation>
    </message>
    <message>
        <source>8P: marketing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>8P: マーケティング</translation>
    </message>
    <message>
        <source>4P: administration</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4P: 管理</translation>
    </message>
    <message>
        <source>5 whys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>なぜなぜ分析</translation>
    </message>
    <message>
        <source>Incident review</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>インシデントレビュー</translation>
    </message>
    <message>
        <source>Project risks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>プロジェクトのリスク</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タイトル</translation>
    </message>
</context>
<context>
    <name>TreeItem</name>
    <message>
        <source>负责人:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>担当者：</translation>
    </message>
    <message>
        <source>创建时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作成日：</translation>
    </message>
    <message>
        <source>截止时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>期限：</translation>
    </message>
    <message>
        <source>子主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>子項目</translation>
    </message>
</context>
<context>
    <name>URLDialog</name>
    <message>
        <source>Input Url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL の入力</translation>
    </message>
    <message>
        <source>Url:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL:</translation>
    </message>
    <message>
        <source>Clean</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Link to url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL へのリンク</translation>
    </message>
    <message>
        <source>Save url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL に保存</translation>
    </message>
    <message>
        <source>Open url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL を開く</translation>
    </message>
    <message>
        <source>Error</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Failed to open %1
%2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 を開けませんでした
%2</translation>
    </message>
</context>
<context>
    <name>ViewCommands</name>
    <message>
        <source>Zoom &amp;in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>100 %(&amp;1)</translation>
    </message>
    <message>
        <source>&amp;Fit all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>全体を表示(&amp;F)</translation>
    </message>
    <message>
        <source>Fit &amp;selection</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>選択部分を表示(&amp;S)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>右に回転(&amp;R)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>左に回転(&amp;L)</translation>
    </message>
    <message>
        <source>U&amp;pright</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>回転を解除(&amp;P)</translation>
    </message>
    <message>
        <source>S&amp;how full screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>全画面表示(&amp;H)</translation>
    </message>
    <message>
        <source>E&amp;xpand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>展開(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>折りたたむ(&amp;C)</translation>
    </message>
    <message>
        <source>Expand &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべて展開(&amp;A)</translation>
    </message>
    <message>
        <source>Con&amp;tract all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべて折りたたむ(&amp;T)</translation>
    </message>
    <message>
        <source>Expanding all bones…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべての骨を展開しています…</translation>
    </message>
    <message>
        <source>Show as a &amp;diagram of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>独立した図として表示(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Show the &amp;whole diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図全体に戻る(&amp;W)</translation>
    </message>
    <message>
        <source>Style of &amp;all subjects…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>すべての項目のスタイル(&amp;Y)…</translation>
    </message>
    <message>
        <source>&amp;Diagram mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図モード(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Task mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>タスクモード(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Just the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>図だけを表示(&amp;J)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(まだありません)</translation>
    </message>
</context>
<context>
    <name>WalkCommands</name>
    <message>
        <source>To the &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>左へ(&amp;L)</translation>
    </message>
    <message>
        <source>To the &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>右へ(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <source>To the &amp;parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>親へ(&amp;P)</translation>
    </message>
    <message>
        <source>To the &amp;first child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>最初の子へ(&amp;F)</translation>
    </message>
    <message>
        <source>To the one &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>前の項目へ(&amp;B)</translation>
    </message>
    <message>
        <source>To the &amp;next one</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>次の項目へ(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Your first fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>はじめての特性要因図</translation>
    </message>
    <message>
        <source>Build it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>作る</translation>
    </message>
    <message>
        <source>Tab: a child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tab: 子項目</translation>
    </message>
    <message>
        <source>Enter: one after it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enter: 後に追加</translation>
    </message>
    <message>
        <source>Shift+Enter: one before it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Shift+Enter: 前に追加</translation>
    </message>
    <message>
        <source>Ctrl+Enter: a parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Enter: 親項目</translation>
    </message>
    <message>
        <source>Change it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>変更する</translation>
    </message>
    <message>
        <source>Just type: a new title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>そのまま入力: 新しいタイトル</translation>
    </message>
    <message>
        <source>F2: edit the title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F2: タイトルを編集</translation>
    </message>
    <message>
        <source>F4: details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F4: 詳細</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Z: 元に戻す</translation>
    </message>
    <message>
        <source>Mark it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>マークする</translation>
    </message>
    <message>
        <source>Space: all marks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Space: すべてのマーク</translation>
    </message>
    <message>
        <source>F7: a vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F7: 1 票</translation>
    </message>
    <message>
        <source>Walk in it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>たどる</translation>
    </message>
    <message>
        <source>Arrows: as you see it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>矢印: 見たとおりに</translation>
    </message>
    <message>
        <source>Ctrl+arrows: by level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+矢印: 階層ごとに</translation>
    </message>
    <message>
        <source>+ and −: expand, contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>+ と −: 展開、折りたたみ</translation>
    </message>
    <message>
        <source>Rearrange it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>並べ替える</translation>
    </message>
    <message>
        <source>Drag a bone onto another</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>骨を別の骨へドラッグ</translation>
    </message>
    <message>
        <source>Alt+arrows: move a bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alt+矢印: 骨を移動</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>眺める</translation>
    </message>
    <message>
        <source>Home: all of it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Home: 全体</translation>
    </message>
    <message>
        <source>Ctrl+wheel: zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+ホイール: ズーム</translation>
    </message>
    <message>
        <source>Take it with you</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>持ち出す</translation>
    </message>
    <message>
        <source>Ctrl+S: save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+S: 保存</translation>
    </message>
    <message>
        <source>Ctrl+E: a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+E: 画像</translation>
    </message>
    <message>
        <source>F1: all keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F1: すべてのキー</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ZoomControls</name>
    <message>
        <source>Zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Show at 100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>100 % で表示</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>回転</translation>
    </message>
</context>
</TS>
