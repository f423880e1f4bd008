<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ChangeWords</name>
    <message>
        <source>%1 is now %2</source>
        <translation>%1 は「%2」になりました</translation>
    </message>
    <message>
        <source>%1 is now %2 (was %3)</source>
        <translation>%1 は「%3」から「%2」に変わりました</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; would be printed in place of &quot;%3&quot;.</source>
        <translation>%1 は「%3」ではなく「%2」で印刷されます。</translation>
    </message>
    <message>
        <source>%1 is gone (was %2)</source>
        <translation>%1 はなくなりました（これまでは「%2」）</translation>
    </message>
</context>
<context>
    <name>CheckCommand</name>
    <message>
        <source>The plug-in %1 cannot check a PPD.</source>
        <translation>プラグイン %1 は PPD を調べることができません。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Standard input, -, may be given only once.</source>
        <translation>標準入力 (-) は一度だけ指定できます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a queue.</source>
        <translation>「%1」はプリンターキューの名前ではありません。</translation>
    </message>
    <message>
        <source>-o needs KEY=VALUE, not &quot;%1&quot;.</source>
        <translation>-o は KEY=VALUE の形で指定してください（「%1」は使えません）。</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 には値が必要です。</translation>
    </message>
    <message>
        <source>%1 may be given only once.</source>
        <translation>%1 は 1 回だけ指定できます。</translation>
    </message>
    <message>
        <source>There is no option %1.</source>
        <translation>%1 というオプションはありません。</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 に値は指定できません。</translation>
    </message>
    <message>
        <source>--replay and --record do not go together.</source>
        <translation>--replay と --record は同時に使えません。</translation>
    </message>
    <message>
        <source>--no-dialog and --screenshot do not go together.</source>
        <translation>--no-dialog と --screenshot は同時に使えません。</translation>
    </message>
    <message>
        <source>--no-dialog needs a document to print.</source>
        <translation>--no-dialog には印刷する文書が必要です。</translation>
    </message>
    <message>
        <source>--yes is for --no-dialog.</source>
        <translation>--yes は --no-dialog と一緒に使います。</translation>
    </message>
    <message>
        <source>The value of %1 is no UTF-8 text.</source>
        <translation>%1 の値は UTF-8 の文字列ではありません。</translation>
    </message>
    <message>
        <source>--check-ppd only looks at a PPD: it prints and replays nothing.</source>
        <translation>--check-ppd は PPD を調べるだけです。印刷やスクリプトの実行とは同時に指定できません。</translation>
    </message>
    <message>
        <source>--no-dialog and --panel do not go together.</source>
        <translation>--no-dialog と --panel は同時に指定できません。</translation>
    </message>
    <message>
        <source>--forget-alerts only has the warnings shown again: it prints nothing.</source>
        <translation>--forget-alerts は警告を再び表示させるだけで、印刷は行いません。</translation>
    </message>
    <message>
        <source>--why needs KEY=VALUE, not &quot;%1&quot;.</source>
        <translation>--why には「%1」ではなく KEY=VALUE を指定してください。</translation>
    </message>
    <message>
        <source>--why only tells of a setting: it prints and replays nothing.</source>
        <translation>--why は設定について調べるだけで、印刷やスクリプトの実行は行いません。</translation>
    </message>
    <message>
        <source>--json is for --why.</source>
        <translation>--json は --why と一緒に使います。</translation>
    </message>
    <message>
        <source>--explain is for --no-dialog.</source>
        <translation>--explain は --no-dialog と一緒に使います。</translation>
    </message>
    <message>
        <source>--dry-run is for --no-dialog.</source>
        <translation>--dry-run は --no-dialog と一緒に使います。</translation>
    </message>
    <message>
        <source>--dry-run and --record do not go together.</source>
        <translation>--dry-run と --record は同時に使えません。</translation>
    </message>
    <message>
        <source>--timeout needs a number of seconds from 0 to %1, not &quot;%2&quot;.</source>
        <translation>--timeout には 0 から %1 までの秒数が必要です。「%2」は使えません。</translation>
    </message>
    <message>
        <source>--wait is for --no-dialog, where the job is sent to a printer.</source>
        <translation>--wait は、--no-dialog でジョブをプリンターに送るときに使います。</translation>
    </message>
    <message>
        <source>--timeout is for --wait.</source>
        <translation>--timeout は --wait と一緒に使います。</translation>
    </message>
    <message>
        <source>--password-fd needs the number of an open file, not &quot;%1&quot;.</source>
        <translation>--password-fd には開いているファイルの番号を指定してください（「%1」は使えません）。</translation>
    </message>
    <message>
        <source>--password-fd is for --no-dialog.</source>
        <translation>--password-fd は --no-dialog と一緒に使います。</translation>
    </message>
    <message>
        <source>--each is for --no-dialog, where the jobs are sent to a printer.</source>
        <translation>--each は、--no-dialog でジョブをプリンターに送るときに使います。</translation>
    </message>
</context>
<context>
    <name>Conflicts</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be chosen: the printer does not allow it together with %2.</source>
        <translation>「%1」は選べません。このプリンターでは%2と同時に使えません。</translation>
    </message>
</context>
<context>
    <name>CustomSizeFields</name>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>Too small: at least %1.</source>
        <translation>小さすぎます（%1 以上）。</translation>
    </message>
    <message>
        <source>Too large: at most %1.</source>
        <translation>大きすぎます（%1 以下）。</translation>
    </message>
    <message>
        <source>H&amp;eight:</source>
        <translation>高さ(&amp;E):</translation>
    </message>
</context>
<context>
    <name>CustomValueFields</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>DialogCommand</name>
    <message>
        <source>There is no display for the dialog; --no-dialog prints without it.</source>
        <translation>画面を表示できるディスプレイがありません。--no-dialog を付けると、画面を表示せずに印刷します。</translation>
    </message>
</context>
<context>
    <name>DialogAdvice</name>
    <message>
        <source>Why is there no &quot;%1&quot;?</source>
        <translation>「%1」がないのはなぜですか?</translation>
    </message>
    <message>
        <source>Everything here can be chosen.</source>
        <translation>ここにあるものはすべて選べます。</translation>
    </message>
    <message>
        <source>Not to be had now: %1
Shift+F1 or the context menu tells why.</source>
        <translation>今は選べないもの: %1
理由は Shift+F1 キーまたは右クリックで分かります。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Finding out…</source>
        <translation>調べています…</translation>
    </message>
    <message>
        <source>This cannot be explained.</source>
        <translation>理由を説明できません。</translation>
    </message>
    <message>
        <source>With that: %1</source>
        <translation>これに伴う変更: %1</translation>
    </message>
    <message>
        <source>Get It</source>
        <translation>使えるようにする</translation>
    </message>
    <message>
        <source>All %1</source>
        <translation>%1 通りすべて</translation>
    </message>
</context>
<context>
    <name>DialogWindow</name>
    <message>
        <source>Leave It</source>
        <translation>このままにする</translation>
    </message>
    <message>
        <source>This printer has nothing for the part %1.</source>
        <translation>このプリンターには %1 の項目がありません。</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>これを使う</translation>
    </message>
    <message>
        <source>Velkaro Print</source>
        <translation>Velkaro Print</translation>
    </message>
    <message>
        <source>The settings of this panel cannot be shown: a part of the plug-in is missing. Install Velkaro Print again.</source>
        <translation>プラグインの一部が見つからないため、この設定画面を表示できません。Velkaro Print をインストールし直してください。</translation>
    </message>
    <message>
        <source>The printer cannot take the paper size in Page Setup. Correct it there to print.</source>
        <translation>「ページ設定」の用紙サイズは、このプリンターでは使用できません。印刷するには、サイズを直してください。</translation>
    </message>
    <message>
        <source>Save Job</source>
        <translation>印刷ジョブの保存</translation>
    </message>
    <message>
        <source>Print jobs (*.velkaro-job);;All files (*)</source>
        <translation>印刷ジョブ (*.velkaro-job);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Sending the job to %1…</source>
        <translation>%1 に送信しています…</translation>
    </message>
    <message>
        <source>Job %1 was accepted. %2</source>
        <translation>ジョブ %1 は受け付けられました。%2</translation>
    </message>
    <message>
        <source>Looking for a printer…</source>
        <translation>プリンターを探しています…</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 を読み込んでいます…</translation>
    </message>
    <message>
        <source>Asking %1 about its settings…</source>
        <translation>%1 の設定を読み込んでいます…</translation>
    </message>
    <message>
        <source>%1 It prints with the settings of this dialog alone.</source>
        <translation>%1この画面の設定だけで印刷します。</translation>
    </message>
    <message>
        <source>There is no panel %1.</source>
        <translation>%1 という設定画面はありません。</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>印刷する文書を選んでください。</translation>
    </message>
    <message>
        <source>No queue was chosen: the job can be saved to a file.</source>
        <translation>プリンターキューが選ばれていません。ジョブはファイルに保存できます。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Save to &amp;File…</source>
        <translation>ファイルに保存(&amp;F)…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>文書の選択</translation>
    </message>
    <message>
        <source>Documents (%1);;All files (*)</source>
        <translation>文書 (%1);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>もう一度印刷</translation>
    </message>
    <message>
        <source>Writing the job to %1…</source>
        <translation>ジョブを %1 に書き込んでいます…</translation>
    </message>
    <message>
        <source>Reading the document to its end…</source>
        <translation>文書を最後まで読み込んでいます…</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 は既に存在します。置き換えますか？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>The printer %1 is no longer on the print server. Choose another one; the settings of this job stay.</source>
        <translation>プリンター %1 はプリントサーバーからなくなりました。ほかのプリンターを選んでください。このジョブの設定は残ります。</translation>
    </message>
    <message>
        <source>Go on with this job?</source>
        <translation>このまま続けますか?</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>A value in Printer Features cannot be used. Correct it there to print.</source>
        <translation>「プリンターの機能」に使えない値があります。印刷するには直してください。</translation>
    </message>
    <message>
        <source>Choose the printer for this saved job.</source>
        <translation>この保存されたジョブを印刷するプリンターを選んでください。</translation>
    </message>
    <message>
        <source>This job is printed with the settings that it was saved with.</source>
        <translation>このジョブは、保存したときの設定で印刷されます。</translation>
    </message>
    <message>
        <source>This job sets %1, which Velkaro Print does not write. Print it all the same?</source>
        <translation>このジョブには、Velkaro Print が書き込まない設定 %1 が含まれています。それでも印刷しますか？</translation>
    </message>
    <message>
        <source>Saved Job</source>
        <translation>保存されたジョブ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Undone.</source>
        <translation>元に戻しました。</translation>
    </message>
    <message>
        <source>Done again.</source>
        <translation>やり直しました。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Trust It</source>
        <translation>信頼する</translation>
    </message>
    <message>
        <source>Print job %1 all the same?</source>
        <translation>それでもジョブ %1 を印刷しますか？</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブを取り消す</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>ジョブ %1 は取り消されました。</translation>
    </message>
    <message>
        <source>What is shown are the former settings.</source>
        <translation>表示されているのは変更前の設定です。</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Your settings are as they were.</source>
        <translation>お使いの設定はそのままです。</translation>
    </message>
    <message>
        <source>Look at the settings before you print.</source>
        <translation>印刷する前に設定を確認してください。</translation>
    </message>
</context>
<context>
    <name>DialogTabs</name>
    <message>
        <source>All Parts</source>
        <translation>すべての項目</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>ページ設定</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>プリンターの機能</translation>
    </message>
    <message>
        <source>Layout &amp; Job</source>
        <translation>レイアウト &amp; ジョブ</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定一覧</translation>
    </message>
    <message>
        <source>Supplies</source>
        <translation>消耗品</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>The document %1 has become shorter or longer since it was opened.</source>
        <translation>文書 %1 の長さが、開いた後に変わりました。</translation>
    </message>
    <message>
        <source>The document %1 cannot be read to its end.</source>
        <translation>文書 %1 を最後まで読み込めません。</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>The document %1 does not exist.</source>
        <translation>文書 %1 がありません。</translation>
    </message>
    <message>
        <source>%1 is a folder, not a document.</source>
        <translation>%1 は文書ではなくフォルダーです。</translation>
    </message>
    <message>
        <source>The document %1 is empty.</source>
        <translation>文書 %1 は空です。</translation>
    </message>
    <message>
        <source>The document %1 cannot be read: %2.</source>
        <translation>文書 %1 を読み込めません（%2）。</translation>
    </message>
    <message>
        <source>%1 is a named pipe, not a document.</source>
        <translation>%1 は文書ではなく名前付きパイプです。</translation>
    </message>
    <message>
        <source>%1 is a socket, not a document.</source>
        <translation>%1 は文書ではなくソケットです。</translation>
    </message>
    <message>
        <source>%1 is a device, not a document.</source>
        <translation>%1 は文書ではなくデバイスです。</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>標準入力</translation>
    </message>
</context>
<context>
    <name>HoldField</name>
    <message>
        <source>At a time of day</source>
        <translation>時刻を指定</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>時刻</translation>
    </message>
</context>
<context>
    <name>Explanation</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>It can be had with: %1</source>
        <translation>次の指定で選べます: %1</translation>
    </message>
</context>
<context>
    <name>FeaturePicks</name>
    <message>
        <source>&quot;%1&quot; needs at least one choice.</source>
        <translation>「%1」では少なくとも 1 つを選んでください。</translation>
    </message>
    <message>
        <source>The printer does not take &quot;%1: %2&quot;.</source>
        <translation>このプリンターでは「%1: %2」を設定できません。</translation>
    </message>
</context>
<context>
    <name>FeatureTexts</name>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 is a number.</source>
        <translation>%1 には数値を入力してください。</translation>
    </message>
    <message>
        <source>%1 is at least %2.</source>
        <translation>%1 は %2 以上にしてください。</translation>
    </message>
    <message>
        <source>%1 is at most %2.</source>
        <translation>%1 は %2 以下にしてください。</translation>
    </message>
    <message>
        <source>%1 has at least %2 characters.</source>
        <translation>%1 は %2 文字以上にしてください。</translation>
    </message>
    <message>
        <source>%1 has at most %2 characters.</source>
        <translation>%1 は %2 文字以内にしてください。</translation>
    </message>
    <message>
        <source>%1 consists of digits.</source>
        <translation>%1 には数字だけを入力してください。</translation>
    </message>
</context>
<context>
    <name>FeaturesPane</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Installed in the Printer</source>
        <translation>プリンターの装備</translation>
    </message>
    <message>
        <source>What the printer has been fitted with. It is set when the printer is set up, for everybody, and can only be looked at here.</source>
        <translation>プリンターに取り付けられている装備です。プリンターの導入時に全員共通で設定されるもので、ここでは確認だけができます。</translation>
    </message>
</context>
<context>
    <name>ForgetCommand</name>
    <message>
        <source>%1 is no plug-in.</source>
        <translation>%1 はプラグインではありません。</translation>
    </message>
    <message>
        <source>The user&apos;s settings cannot be written.</source>
        <translation>ユーザーの設定を書き込めません。</translation>
    </message>
    <message>
        <source>Shown again: %1</source>
        <translation>再び表示します: %1</translation>
    </message>
</context>
<context>
    <name>HiddenAlertsDialog</name>
    <message>
        <source>Hidden Warnings</source>
        <translation>非表示の警告</translation>
    </message>
    <message>
        <source>You have asked not to be shown these warnings again. Select those to be shown.</source>
        <translation>次の警告は表示しない設定になっています。再び表示するものを選んでください。</translation>
    </message>
    <message>
        <source>Show Again</source>
        <translation>再び表示</translation>
    </message>
    <message>
        <source>Show All Again</source>
        <translation>すべて再び表示</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Page Setup holds the paper, its orientation, two-sided printing and what else the printer leaves to this dialog. A size of your own is entered below the paper; a word beside the field says when the printer cannot take it.</source>
        <translation>「ページ設定」では、用紙、向き、両面印刷など、この画面で決める項目を選びます。任意の用紙サイズは用紙の下に入力します。プリンターで使えない大きさのときは、入力欄の横に表示されます。</translation>
    </message>
    <message>
        <source>When the printer does not allow two settings together, the second one is not made, and a line below the tabs names both.</source>
        <translation>同時に使えない設定を選んだときは、後から選んだ設定は反映されず、両方の名前がタブの下に表示されます。</translation>
    </message>
    <message>
        <source>Summary lists everything that will be printed with. &quot;Save to File&quot; keeps the job with its documents; open it here later, as a document, to print it.</source>
        <translation>「設定一覧」には、印刷に使われるすべての設定が表示されます。「ファイルに保存」を選ぶと、ジョブを文書と一緒に保存します。保存したジョブは、後から文書としてここで開いて印刷できます。</translation>
    </message>
    <message>
        <source>Print Help</source>
        <translation>印刷のヘルプ</translation>
    </message>
    <message>
        <source>&quot;Scaling&quot; says how the pages of the document come to the size of the paper in the printer. What comes of each choice stands below it.</source>
        <translation>「拡大縮小」では、文書のページをプリンターの用紙の大きさにどう合わせるかを選びます。それぞれの結果は項目の下に表示されます。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Ctrl+Z takes back what you have set, step by step, and Ctrl+Shift+Z does it again. Shift+F1 and the context menu of a setting tell why something cannot be chosen there, and how it can.</source>
        <translation>Ctrl+Z で設定を 1 つずつ元に戻し、Ctrl+Shift+Z でやり直します。Shift+F1 キーまたは設定を右クリックしたメニューで、選べない理由と選べるようにする方法が分かります。</translation>
    </message>
</context>
<context>
    <name>JobAuthentication</name>
    <message>
        <source>Job %1 on %2 stays held: nobody has said who prints.</source>
        <translation>%2 のジョブ %1 は保留されたままです。印刷するユーザーが入力されませんでした。</translation>
    </message>
    <message>
        <source>The printer behind %1 wants to know who prints, and nobody has said it.</source>
        <translation>%1 のプリンターは印刷するユーザーの入力を求めていますが、入力されませんでした。</translation>
    </message>
</context>
<context>
    <name>JobDispatch</name>
    <message>
        <source>Job %1 on %2 was cancelled; --yes prints it all the same.</source>
        <translation>%2 のジョブ %1 は取り消されました。それでも印刷するには --yes を付けてください。</translation>
    </message>
    <message>
        <source>Not sent: %1</source>
        <translation>送信していません: %1</translation>
    </message>
</context>
<context>
    <name>JobDoubts</name>
    <message>
        <source>A booklet has two pages on a side, not %1.</source>
        <translation>小冊子は片面に %1 ページではなく 2 ページです。</translation>
    </message>
    <message>
        <source>A booklet needs both sides of the paper; this job is printed on one.</source>
        <translation>小冊子には用紙の両面が必要ですが、このジョブは片面に印刷されます。</translation>
    </message>
    <message>
        <source>The printer cannot print on both sides of this paper: %1.</source>
        <translation>このプリンターでは、この用紙の両面に印刷できません: %1。</translation>
    </message>
    <message>
        <source>For %1 there is &quot;%2&quot;.</source>
        <translation>%1 には「%2」を使用できます。</translation>
    </message>
    <message>
        <source>With several pages on a sheet, &quot;Pages&quot; and &quot;Even and Odd&quot; count the printed sides.</source>
        <translation>1 枚に複数のページを印刷するときは、「ページ」と「奇数・偶数ページ」は印刷される面を数えます。</translation>
    </message>
</context>
<context>
    <name>JobFile</name>
    <message>
        <source>The saved job %1 is damaged, or another version of Velkaro Print has written it.</source>
        <translation>保存されたジョブ %1 は壊れているか、別のバージョンの Velkaro Print で書かれています。</translation>
    </message>
    <message>
        <source>%1 is no saved job.</source>
        <translation>%1 は保存されたジョブではありません。</translation>
    </message>
    <message>
        <source>The saved job %1 is damaged.</source>
        <translation>保存されたジョブ %1 は壊れています。</translation>
    </message>
    <message>
        <source>The saved job %1 is cut short: its end is missing.</source>
        <translation>保存されたジョブ %1 は途中で切れています。</translation>
    </message>
    <message>
        <source>The saved job %1 is damaged: its header has no end.</source>
        <translation>保存されたジョブ %1 は壊れています（ヘッダーが終わっていません）。</translation>
    </message>
    <message>
        <source>The saved job %1 has too many documents: %2 are the most.</source>
        <translation>保存されたジョブ %1 の文書が多すぎます（最大 %2 個）。</translation>
    </message>
    <message>
        <source>The saved job %1 has too many settings: %2 are the most.</source>
        <translation>保存されたジョブ %1 の設定が多すぎます（最大 %2 個）。</translation>
    </message>
    <message>
        <source>%1 would have too many documents: %2 are the most.</source>
        <translation>%1 に保存する文書が多すぎます（最大 %2 個）。</translation>
    </message>
    <message>
        <source>The job was not written.</source>
        <translation>ジョブは保存されませんでした。</translation>
    </message>
</context>
<context>
    <name>JobHeader</name>
    <message>
        <source>C&amp;hoose…</source>
        <translation>選択(&amp;H)…</translation>
    </message>
    <message>
        <source>All, or 1-3, 5</source>
        <translation>すべて、または 1-3, 5</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>文書:</translation>
    </message>
    <message>
        <source>Pri&amp;nter:</source>
        <translation>プリンター(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>文書なし</translation>
    </message>
    <message>
        <source>Pages look like this: 1-3, 5</source>
        <translation>「1-3, 5」のように入力してください</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>プリセット:</translation>
    </message>
    <message>
        <source>%1 is beyond page %2</source>
        <translation>%1 は最終ページ (%2) を超えています</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>全 %1 ページ</translation>
    </message>
    <message>
        <source>How many there are is not known</source>
        <translation>全ページ数は不明です</translation>
    </message>
    <message>
        <source>%1 is beyond side %2</source>
        <translation>%1 は最後の面 (%2) を超えています</translation>
    </message>
    <message>
        <source>%1 sides in all</source>
        <translation>全 %1 面</translation>
    </message>
</context>
<context>
    <name>JobLayout</name>
    <message>
        <source>Across, from the top left</source>
        <translation>左上から横へ</translation>
    </message>
    <message>
        <source>Across, from the top right</source>
        <translation>右上から横へ</translation>
    </message>
    <message>
        <source>Across, from the bottom left</source>
        <translation>左下から横へ</translation>
    </message>
    <message>
        <source>Across, from the bottom right</source>
        <translation>右下から横へ</translation>
    </message>
    <message>
        <source>Down, from the top left</source>
        <translation>左上から下へ</translation>
    </message>
    <message>
        <source>Down, from the top right</source>
        <translation>右上から下へ</translation>
    </message>
    <message>
        <source>Up, from the bottom left</source>
        <translation>左下から上へ</translation>
    </message>
    <message>
        <source>Up, from the bottom right</source>
        <translation>右下から上へ</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>枠なし</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>細線</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>太線</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>細い二重線</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>太い二重線</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>奇数ページのみ</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>偶数ページのみ</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>最初のページから</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>Copy by copy</source>
        <translation>部単位</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>ページ単位</translation>
    </message>
    <message>
        <source>No</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>する</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>今すぐ</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>保留が解除されたとき</translation>
    </message>
    <message>
        <source>By day (6:00 to 18:00)</source>
        <translation>日中 (6:00～18:00)</translation>
    </message>
    <message>
        <source>In the evening (from 18:00)</source>
        <translation>夕方以降 (18:00 から)</translation>
    </message>
    <message>
        <source>At night (18:00 to 6:00)</source>
        <translation>夜間 (18:00～6:00)</translation>
    </message>
    <message>
        <source>In the second shift (from 16:00)</source>
        <translation>第 2 シフト (16:00 から)</translation>
    </message>
    <message>
        <source>In the third shift (from midnight)</source>
        <translation>第 3 シフト (0:00 から)</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>区分なし</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>機密区分あり</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>社外秘</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>機密</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>最高機密</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1 before the job</source>
        <translation>ジョブの前に%1</translation>
    </message>
    <message>
        <source>%1 after the job</source>
        <translation>ジョブの後に%1</translation>
    </message>
    <message>
        <source>%1 before the job, %2 after it</source>
        <translation>ジョブの前に%1、後に%2</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>1 枚あたりのページ数</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>ページの並び順</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>枠</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Even and Odd</source>
        <translation>奇数・偶数ページ</translation>
    </message>
    <message>
        <source>Page Order</source>
        <translation>印刷順</translation>
    </message>
    <message>
        <source>Several Copies</source>
        <translation>複数部数</translation>
    </message>
    <message>
        <source>When to Print</source>
        <translation>印刷の時期</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Cover Pages</source>
        <translation>バナーページ</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>通知先</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>The setting %1 cannot be sent: &quot;%2&quot; is no value that a print server may be given.</source>
        <translation>設定 %1 は送信できません。「%2」はプリントサーバーに渡せない値です。</translation>
    </message>
    <message>
        <source>The setting &quot;%1&quot; cannot be sent: a print server may be given no setting of that name.</source>
        <translation>設定「%1」は送信できません。プリントサーバーに渡せない名前の設定です。</translation>
    </message>
</context>
<context>
    <name>JobReadBack</name>
    <message>
        <source>The printer is stopped; job %1 waits (%2).</source>
        <translation>プリンターが停止しているため、ジョブ %1 は待っています (%2)。</translation>
    </message>
    <message>
        <source>The server holds job %1 (%2).</source>
        <translation>サーバーがジョブ %1 を保留しています（%2）。</translation>
    </message>
    <message>
        <source>The server dropped the setting %1=%2.</source>
        <translation>サーバーが設定 %1=%2 を受け付けませんでした。</translation>
    </message>
    <message>
        <source>The server changed the setting %1 from %2 to %3.</source>
        <translation>サーバーが設定 %1 を %2 から %3 に変更しました。</translation>
    </message>
    <message>
        <source>The server has cancelled job %1 (%2).</source>
        <translation>サーバーがジョブ %1 を取り消しました（%2）。</translation>
    </message>
    <message>
        <source>The server has aborted job %1 (%2).</source>
        <translation>サーバーがジョブ %1 を中止しました（%2）。</translation>
    </message>
    <message>
        <source>The server has ended job %1 with errors (%2).</source>
        <translation>サーバーでジョブ %1 がエラーで終了しました（%2）。</translation>
    </message>
    <message>
        <source>Whether the server keeps all settings of job %1 is not known: its account of the job cannot be read.</source>
        <translation>ジョブ %1 の設定がサーバーにすべて保たれているかどうかは分かりません。サーバーの返したジョブの情報を読み取れませんでした。</translation>
    </message>
    <message>
        <source>The server set %1 to %2, where %3 was shown.</source>
        <translation>サーバーが %1 を %2 にしました。表示されていたのは %3 です。</translation>
    </message>
    <message>
        <source>The server set %1 to %2, which was not shown.</source>
        <translation>サーバーが %1 を %2 にしました。これは表示されていませんでした。</translation>
    </message>
</context>
<context>
    <name>JobSentence</name>
    <message>
        <source>Job %1 on %2 is waiting for its turn.</source>
        <translation>%2 のジョブ %1 は順番を待っています。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held.</source>
        <translation>%2 のジョブ %1 は保留されています。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held: %3.</source>
        <translation>%2 のジョブ %1 は保留されています：%3。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held: it will be tried again later.</source>
        <translation>%2 のジョブ %1 は保留されています。後でもう一度試みます。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held and will be tried again later: %3.</source>
        <translation>%2 のジョブ %1 は保留されています。後でもう一度試みます：%3。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until its printer is given a user name and a password.</source>
        <translation>%2 のジョブ %1 は、プリンターにユーザー名とパスワードが渡されるまで保留されています。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing.</source>
        <translation>%2 のジョブ %1 を印刷しています。</translation>
    </message>
    <message>
        <source>Job %1 on %2: the printer needs somebody.</source>
        <translation>%2 のジョブ %1：プリンターの確認が必要です。</translation>
    </message>
    <message>
        <source>Job %1 on %2: the printer needs somebody: %3.</source>
        <translation>%2 のジョブ %1：プリンターの確認が必要です：%3。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is waiting: the printer is stopped.</source>
        <translation>%2 のジョブ %1 は待っています：プリンターが停止しています。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is waiting: the printer is stopped: %3.</source>
        <translation>%2 のジョブ %1 は待っています：プリンターが停止しています：%3。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printed.</source>
        <translation>%2 のジョブ %1 の印刷が終わりました。</translation>
    </message>
    <message>
        <source>Job %1 on %2 has ended with errors.</source>
        <translation>%2 のジョブ %1 はエラーで終わりました。</translation>
    </message>
    <message>
        <source>Job %1 on %2 has ended with errors: %3.</source>
        <translation>%2 のジョブ %1 はエラーで終わりました：%3。</translation>
    </message>
    <message>
        <source>Job %1 on %2 was cancelled.</source>
        <translation>%2 のジョブ %1 は取り消されました。</translation>
    </message>
    <message>
        <source>The server has given job %1 on %2 up.</source>
        <translation>サーバーは %2 のジョブ %1 を中止しました。</translation>
    </message>
    <message>
        <source>The server has given job %1 on %2 up: %3.</source>
        <translation>サーバーは %2 のジョブ %1 を中止しました：%3。</translation>
    </message>
    <message>
        <source>The server has no record of job %1 on %2 any more: whether it was printed is not known.</source>
        <translation>%2 のジョブ %1 の記録がサーバーにもうありません。印刷されたかどうかは分かりません。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until somebody releases it.</source>
        <translation>%2 のジョブ %1 は、解除されるまで保留されます。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held. %3: %4.</source>
        <translation>%2 のジョブ %1 は保留されています。%3：%4。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until %3.</source>
        <translation>%2 のジョブ %1 は %3 まで保留されています。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing, %3 sheets so far.</source>
        <translation>%2 のジョブ %1 を印刷しています。これまでに %3 枚です。</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing page %3 of %4.</source>
        <translation>%2 のジョブ %1：%4 ページ中 %3 ページ目を印刷しています。</translation>
    </message>
</context>
<context>
    <name>JobSettlement</name>
    <message>
        <source>%1 Job %2 on %3 could not be cancelled at %4 and may be printed.</source>
        <translation>%1%3 のジョブ %2 を %4 で取り消せませんでした。印刷される可能性があります。</translation>
    </message>
    <message>
        <source>The print server %1 cancelled job %2 on %3.</source>
        <translation>プリントサーバー %1 が %3 のジョブ %2 を取り消しました。</translation>
    </message>
    <message>
        <source>The print server %1 aborted job %2 on %3.</source>
        <translation>プリントサーバー %1 が %3 のジョブ %2 を中止しました。</translation>
    </message>
    <message>
        <source>The print server %1 did not say whether it took the job: it may have been printed as job %2 on %3.</source>
        <translation>プリントサーバー %1 から、ジョブを受け付けたかどうかの応答がありません。%3 のジョブ %2 として印刷された可能性があります。</translation>
    </message>
    <message>
        <source>The server holds job %1, which could not be released: %2</source>
        <translation>サーバーがジョブ %1 を保留していますが、保留を解除できませんでした。%2</translation>
    </message>
    <message>
        <source>Job %1 on %2 was cancelled: %3</source>
        <translation>%2 のジョブ %1 は取り消されました。%3</translation>
    </message>
    <message>
        <source>Nothing was printed on %1: %2</source>
        <translation>%1 では何も印刷されませんでした。%2</translation>
    </message>
</context>
<context>
    <name>JobSubmission</name>
    <message>
        <source>The queue %1 takes no jobs at present.</source>
        <translation>キュー %1 は現在ジョブを受け付けていません。</translation>
    </message>
</context>
<context>
    <name>JobSummary</name>
    <message>
        <source>Page Setup</source>
        <translation>ページ設定</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>By the Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>By the Application</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>Layout &amp; Job</source>
        <translation>レイアウト &amp; ジョブ</translation>
    </message>
    <message>
        <source>Also Sent</source>
        <translation>あわせて送られる設定</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>プリンターの機能</translation>
    </message>
</context>
<context>
    <name>JobTrial</name>
    <message>
        <source>Job %1 is held on %2 and could not be released: %3</source>
        <translation>ジョブ %1 は %2 で保留されており、保留を解除できませんでした。%3</translation>
    </message>
    <message>
        <source>Job %1 is held on %2 and could not be cancelled: %3</source>
        <translation>ジョブ %1 は %2 で保留されており、取り消せませんでした。%3</translation>
    </message>
</context>
<context>
    <name>JobWait</name>
    <message>
        <source>Job %1 on %2 was not waited for any longer; it stays where it is.</source>
        <translation>%2 のジョブ %1 をこれ以上は待ちません。ジョブはそのまま残ります。</translation>
    </message>
    <message>
        <source>Job %1 on %2 goes on without being waited for.</source>
        <translation>%2 のジョブ %1 は続きますが、待つのは終わります。</translation>
    </message>
</context>
<context>
    <name>JobWindow</name>
    <message>
        <source>Job %1 on %2</source>
        <translation>%2 のジョブ %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>保留を解除</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>もう一度印刷</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブを取り消す</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>パスワードを入力…</translation>
    </message>
    <message>
        <source>Open Queue</source>
        <translation>キューを開く</translation>
    </message>
</context>
<context>
    <name>LayoutPane</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Job Title:</source>
        <translation>ジョブのタイトル:</translation>
    </message>
    <message>
        <source>Cover page before the job</source>
        <translation>ジョブの前のバナーページ</translation>
    </message>
    <message>
        <source>Cover page after the job</source>
        <translation>ジョブの後のバナーページ</translation>
    </message>
    <message>
        <source>Mail address, or nothing</source>
        <translation>メールアドレス (任意)</translation>
    </message>
    <message>
        <source>An address looks like this: me@example.com</source>
        <translation>アドレスの例: me@example.com</translation>
    </message>
</context>
<context>
    <name>LengthUnit</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 インチ</translation>
    </message>
</context>
<context>
    <name>LpoptionsFile</name>
    <message>
        <source>The saved settings in %1 cannot be read: %2.</source>
        <translation>%1 に保存された設定を読み込めません: %2。</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>it has more than %1 MB</source>
        <translation>%1 MB を超えています</translation>
    </message>
    <message>
        <source>Another program is changing %1. Try again.</source>
        <translation>別のプログラムが %1 を変更しています。もう一度お試しください。</translation>
    </message>
    <message>
        <source>These are too many settings for one name.</source>
        <translation>設定が多すぎて、1 つの名前では保存できません。</translation>
    </message>
</context>
<context>
    <name>Mnemonics</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>NoDialogCommand</name>
    <message>
        <source>No printer was chosen and there is no default one; -d QUEUE names one.</source>
        <translation>プリンターが選ばれておらず、デフォルトのプリンターもありません。-d QUEUE で指定してください。</translation>
    </message>
    <message>
        <source>Printing was cancelled.</source>
        <translation>印刷を中止しました。</translation>
    </message>
    <message>
        <source>No queue was named to print to; -d QUEUE names one, --output FILE keeps the job.</source>
        <translation>印刷先のキューが指定されていません。-d QUEUE で指定するか、--output FILE でファイルに保存してください。</translation>
    </message>
    <message>
        <source>The job was written to %1.</source>
        <translation>ジョブを %1 に保存しました。</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot; to %2.</source>
        <translation>「%1」を %2 に送信します。</translation>
    </message>
    <message>
        <source>Document: %1 (%2 bytes)</source>
        <translation>文書: %1（%2 バイト）</translation>
    </message>
    <message>
        <source>Setting: %1=%2</source>
        <translation>設定: %1=%2</translation>
    </message>
    <message>
        <source>%1 would get the job.</source>
        <translation>ジョブは %1 に送信されます（今回は送信していません）。</translation>
    </message>
    <message>
        <source>The job would be written to %1.</source>
        <translation>ジョブは %1 に保存されます（今回は保存していません）。</translation>
    </message>
    <message>
        <source>%1 would get %2 jobs.</source>
        <translation>%2 個のジョブが %1 に送信されます（今回は送信していません）。</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: what is sent waits.</source>
        <translation>プリンター %1 は停止しています。送信されたジョブは待機します。</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: what is sent waits. It says: %2</source>
        <translation>プリンター %1 は停止しています。送信されたジョブは待機します。プリンターからのメッセージ: %2</translation>
    </message>
</context>
<context>
    <name>OptionRows</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>By the P&amp;rinter</source>
        <translation>プリンター(&amp;R)</translation>
    </message>
    <message>
        <source>By the Appl&amp;ication</source>
        <translation>アプリケーション(&amp;I)</translation>
    </message>
    <message>
        <source>Color Management:</source>
        <translation>カラーマネージメント:</translation>
    </message>
</context>
<context>
    <name>OriginWords</name>
    <message>
        <source>Because you chose %1: %2</source>
        <translation>%1 に「%2」を選んだため</translation>
    </message>
    <message>
        <source>Goes with your choices</source>
        <translation>選んだ設定に合わせたもの</translation>
    </message>
    <message>
        <source>Saved with the printer</source>
        <translation>プリンターに保存された設定</translation>
    </message>
    <message>
        <source>From the preset %1</source>
        <translation>プリセット「%1」</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>前回の設定</translation>
    </message>
    <message>
        <source>From the command line</source>
        <translation>コマンドラインの指定</translation>
    </message>
    <message>
        <source>Your choice</source>
        <translation>あなたの選択</translation>
    </message>
    <message>
        <source>Goes with the other settings</source>
        <translation>ほかの設定に合わせたもの</translation>
    </message>
    <message>
        <source>The printer's default</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>%1: %2 – %3</source>
        <translation>%1：%2 – %3</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>ファイル %1 に書き込めません（%2）。</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>読み取る側がいません</translation>
    </message>
</context>
<context>
    <name>OutputRule</name>
    <message>
        <source>Nothing is written over %1: it is in use for this.</source>
        <translation>%1 はこの処理で使用中のため、上書きしません。</translation>
    </message>
    <message>
        <source>%1 is a folder: it cannot be written.</source>
        <translation>%1 はフォルダーのため、書き込めません。</translation>
    </message>
    <message>
        <source>The file %1 exists already; --force replaces it.</source>
        <translation>ファイル %1 は既に存在します。置き換えるには --force を指定してください。</translation>
    </message>
</context>
<context>
    <name>OwnSizeFields</name>
    <message>
        <source>&amp;Keep</source>
        <translation>保存(&amp;K)</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>名前を変更(&amp;N)</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>削除(&amp;V)</translation>
    </message>
    <message>
        <source>Name of this size</source>
        <translation>このサイズの名前</translation>
    </message>
</context>
<context>
    <name>PathBytes</name>
    <message>
        <source>standard output</source>
        <translation>標準出力</translation>
    </message>
</context>
<context>
    <name>PPDFile</name>
    <message>
        <source>The PPD file %1 does not exist.</source>
        <translation>PPD ファイル %1 がありません。</translation>
    </message>
    <message>
        <source>%1 is not a PPD file.</source>
        <translation>%1 は PPD ファイルではありません。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read.</source>
        <translation>PPD ファイル %1 を読み込めません。</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large: it has more than %2 bytes.</source>
        <translation>PPD ファイル %1 は大きすぎます（%2 バイトを超えています）。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 lines.</source>
        <translation>PPD ファイル %1 は使用できません。行数が %2 を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 groups of options.</source>
        <translation>PPD ファイル %1 は使用できません。設定項目のグループが %2 個を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 options.</source>
        <translation>PPD ファイル %1 は使用できません。設定項目が %2 個を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: an option has more than %2 choices.</source>
        <translation>PPD ファイル %1 は使用できません。選択肢が %2 個を超える設定項目があります。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 papers.</source>
        <translation>PPD ファイル %1 は使用できません。用紙が %2 種類を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 custom parameters.</source>
        <translation>PPD ファイル %1 は使用できません。カスタムパラメーターが %2 個を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 UIConstraints.</source>
        <translation>PPD ファイル %1 は使用できません。UIConstraints が %2 個を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 cupsUIConstraints.</source>
        <translation>PPD ファイル %1 は使用できません。cupsUIConstraints が %2 個を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: its cupsUIConstraints name more than %2 options.</source>
        <translation>PPD ファイル %1 は使用できません。cupsUIConstraints に書かれた設定項目が %2 個を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 attributes.</source>
        <translation>PPD ファイル %1 は使用できません。属性が %2 個を超えています。</translation>
    </message>
    <message>
        <source>The PPD file %1 is damaged: it cannot be unpacked. Get it again.</source>
        <translation>PPD ファイル %1 は壊れているため展開できません。入手し直してください。</translation>
    </message>
    <message>
        <source>%1 is not a PPD file (%2).</source>
        <translation>%1 は PPD ファイルではありません（%2）。</translation>
    </message>
    <message>
        <source>%1 is not a usable PPD file (line %2: %3).</source>
        <translation>%1 は使用できない PPD ファイルです（%2 行目: %3）。</translation>
    </message>
    <message>
        <source>The PPD file %1 is incomplete: it ends too early. Get it again.</source>
        <translation>PPD ファイル %1 は途中で終わっています。入手し直してください。</translation>
    </message>
</context>
<context>
    <name>PanelVeto</name>
    <message>
        <source>The printer&apos;s settings do not allow this job.</source>
        <translation>プリンターの設定により、このジョブは印刷できません。</translation>
    </message>
</context>
<context>
    <name>PaperList</name>
    <message>
        <source>Standard</source>
        <translation>定型サイズ</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Envelopes and Cards</source>
        <translation>封筒・はがき・カード</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Used Recently</source>
        <translation>最近使った用紙</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>カスタムサイズ</translation>
    </message>
    <message>
        <source>Own Sizes</source>
        <translation>ユーザー定義サイズ</translation>
    </message>
</context>
<context>
    <name>PaperRows</name>
    <message>
        <source>P&amp;aper in the Printer:</source>
        <translation>プリンターの用紙(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Borderless</source>
        <translation>フチなし(&amp;B)</translation>
    </message>
    <message>
        <source>Document Page:</source>
        <translation>文書のページ:</translation>
    </message>
</context>
<context>
    <name>PaperSizes</name>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 インチ</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>&amp;Remember the password in the keyring</source>
        <translation>パスワードをキーリングに保存する(&amp;R)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
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
        <source>&amp;User name:</source>
        <translation>ユーザー名(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Domain:</source>
        <translation>ドメイン(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>No password can be read from the open file %1 (--password-fd): %2.</source>
        <translation>開いているファイル %1（--password-fd）からパスワードを読み込めません（%2）。</translation>
    </message>
    <message>
        <source>The open file %1 cannot be a document and hold the password (--password-fd).</source>
        <translation>開いているファイル %1 は、文書とパスワード（--password-fd）の両方には使えません。</translation>
    </message>
    <message>
        <source>Domain: </source>
        <translation>ドメイン: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>パスワード: </translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>ユーザー名: </translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>ユーザー名 [%1]: </translation>
    </message>
</context>
<context>
    <name>PasswordWords</name>
    <message>
        <source>The print server %1 wants to know who asks for its printers.</source>
        <translation>プリントサーバー %1 のプリンターを表示するには、ユーザーの確認が必要です。</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who asks for the settings of %2.</source>
        <translation>プリントサーバー %1 から %2 の設定を取得するには、ユーザーの確認が必要です。</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints to %2.</source>
        <translation>プリントサーバー %1 の %2 に印刷するには、ユーザーの確認が必要です。</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who changes a job on %2.</source>
        <translation>プリントサーバー %1 の %2 のジョブを変更するには、ユーザーの確認が必要です。</translation>
    </message>
    <message>
        <source>The print server %1 holds the job until the printer behind %2 knows who prints.</source>
        <translation>プリントサーバー %1 は、%2 のプリンターでユーザーが確認されるまでジョブを保留しています。</translation>
    </message>
    <message>
        <source>The user name or the password was not right.</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network may read the password.</source>
        <translation>接続は暗号化されていません。パスワードがネットワーク上で読み取られるおそれがあります。</translation>
    </message>
    <message>
        <source>The printer behind %2 on the print server %1 wants to know who prints.</source>
        <translation>プリントサーバー %1 にある %2 のプリンターは、印刷するユーザーの入力を求めています。</translation>
    </message>
</context>
<context>
    <name>PipeDocuments</name>
    <message>
        <source>There is no room in the temporary folder %1 for the document %2.</source>
        <translation>一時フォルダー %1 に、文書 %2 を置く空きがありません。</translation>
    </message>
    <message>
        <source>The document %1 cannot be kept in the temporary folder %2: %3.</source>
        <translation>文書 %1 を一時フォルダー %2 に置けません（%3）。</translation>
    </message>
    <message>
        <source>The document %1 is longer than %2 MB, the most that is read from a pipe.</source>
        <translation>文書 %1 は、パイプから読み込める上限の %2 MB を超えています。</translation>
    </message>
</context>
<context>
    <name>PlacementRows</name>
    <message>
        <source>P&amp;ortrait</source>
        <translation>縦(&amp;O)</translation>
    </message>
    <message>
        <source>Pages that are wider than high are turned to fill the paper.</source>
        <translation>横長のページは用紙に合わせて回転します。</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>横(&amp;L)</translation>
    </message>
    <message>
        <source>The paper lies on its side, and every page upright on it.</source>
        <translation>用紙を横に使い、どのページもその上に正しい向きで印刷します。</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>向き:</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>拡大縮小(&amp;S):</translation>
    </message>
</context>
<context>
    <name>PlugInLoader</name>
    <message>
        <source>The printer&apos;s settings are missing: there is no plug-in at %1. Install Velkaro Print again.</source>
        <translation>プリンターの設定が見つかりません。%1 にプラグインがありません。Velkaro Print をインストールし直してください。</translation>
    </message>
    <message>
        <source>The plug-in %1 is incomplete: it has no readable Info.json. Install Velkaro Print again.</source>
        <translation>プラグイン %1 が不完全です。Info.json を読み込めません。Velkaro Print をインストールし直してください。</translation>
    </message>
    <message>
        <source>The plug-in is incomplete: %1 is missing. Install Velkaro Print again.</source>
        <translation>プラグインが不完全です。%1 がありません。Velkaro Print をインストールし直してください。</translation>
    </message>
    <message>
        <source>The plug-in %1 is incomplete: its library is missing. Install Velkaro Print again.</source>
        <translation>プラグイン %1 が不完全です。ライブラリがありません。Velkaro Print をインストールし直してください。</translation>
    </message>
    <message>
        <source>The plug-in is not used, because other users may change %1. Let nobody but yourself and the administrator write there.</source>
        <translation>ほかのユーザーが %1 を変更できるため、プラグインは使用されません。ご自身と管理者だけが書き込めるようにしてください。</translation>
    </message>
    <message>
        <source>%1 is not a plug-in of this print dialog.</source>
        <translation>%1 はこの印刷画面のプラグインではありません。</translation>
    </message>
    <message>
        <source>The plug-in %1 was made for another version of this print dialog. Install the same version of both.</source>
        <translation>プラグイン %1 は別のバージョンの印刷画面用です。同じバージョンをインストールしてください。</translation>
    </message>
    <message>
        <source>The plug-in %1 could not be loaded.</source>
        <translation>プラグイン %1 を読み込めませんでした。</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be used with this print dialog.</source>
        <translation>プラグイン %1 はこの印刷画面では使用できません。</translation>
    </message>
    <message>
        <source>The plug-in cannot be used: %1 is no row of a keyword, a choice, a standard attribute and its value.</source>
        <translation>プラグインを使用できません。%1 は、キーワード、選択肢、標準属性とその値からなる行ではありません。</translation>
    </message>
</context>
<context>
    <name>PresetActions</name>
    <message>
        <source>Save as Preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>プリセット名の変更</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>プリセット「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>残す</translation>
    </message>
    <message>
        <source>No warnings are hidden: all are shown.</source>
        <translation>非表示にした警告はありません。すべて表示されます。</translation>
    </message>
    <message>
        <source>Some of the settings do not go together: the preset has what is shown now.</source>
        <translation>組み合わせられない設定がありました。プリセットには現在表示されている設定が保存されました。</translation>
    </message>
</context>
<context>
    <name>PresetNameDialog</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>同じ名前のプリセットがすでにあります。</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>同じ名前のプリセットが置き換えられます。</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>The preset &quot;%1&quot; was set up for everybody who uses this computer; it cannot be changed here.</source>
        <translation>プリセット「%1」はこのコンピューターの全員用に設定されたもので、ここでは変更できません。</translation>
    </message>
    <message>
        <source>Give the preset a name.</source>
        <translation>プリセットの名前を入力してください。</translation>
    </message>
    <message>
        <source>The name of a preset has no spaces, slashes, quotes, braces or #; other programs would not find it. &quot;-&quot; and &quot;_&quot; are fine.</source>
        <translation>プリセットの名前には空白、スラッシュ、引用符、波括弧、# を使えません（ほかのプログラムから見つけられなくなるため）。「-」と「_」は使えます。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already.</source>
        <translation>プリセット「%1」はすでにあります。</translation>
    </message>
</context>
<context>
    <name>PresetsRow</name>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>プリセットとして保存…</translation>
    </message>
    <message>
        <source>Rename Preset…</source>
        <translation>プリセット名の変更…</translation>
    </message>
    <message>
        <source>Delete Preset…</source>
        <translation>プリセットの削除…</translation>
    </message>
    <message>
        <source>Back to the Printer&apos;s Defaults</source>
        <translation>プリンターの既定値に戻す</translation>
    </message>
    <message>
        <source>Start with the Settings Used Last</source>
        <translation>前回の設定で始める</translation>
    </message>
    <message>
        <source>Hidden Warnings…</source>
        <translation>非表示の警告…</translation>
    </message>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>Usual Settings</source>
        <translation>いつもの設定</translation>
    </message>
    <message>
        <source>Settings Used Last</source>
        <translation>前回の設定</translation>
    </message>
    <message>
        <source>%1 (from the printer&apos;s maker)</source>
        <translation>%1（プリンターメーカー提供）</translation>
    </message>
    <message>
        <source>Follow the Job After Printing</source>
        <translation>印刷後のジョブを見守る</translation>
    </message>
</context>
<context>
    <name>PopUpButton</name>
    <message>
        <source>Not available</source>
        <translation>選択できません</translation>
    </message>
</context>
<context>
    <name>PrinterChoice</name>
    <message>
        <source>%1 was chosen: you printed to it last.</source>
        <translation>最後に印刷した %1 を選びました。</translation>
    </message>
    <message>
        <source>%1 was chosen: LPDEST or PRINTER names it.</source>
        <translation>LPDEST または PRINTER で指定されている %1 を選びました。</translation>
    </message>
    <message>
        <source>%1 was chosen: it is your default printer.</source>
        <translation>通常使うプリンターの %1 を選びました。</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the print server's default printer.</source>
        <translation>プリントサーバーの既定のプリンターである %1 を選びました。</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the only printer.</source>
        <translation>ただ 1 台のプリンターである %1 を選びました。</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the first printer that takes jobs, and none is the default.</source>
        <translation>既定のプリンターがないため、ジョブを受け付ける最初のプリンターである %1 を選びました。</translation>
    </message>
    <message>
        <source>No printer takes jobs at present. Choose one, or try again later.</source>
        <translation>現在ジョブを受け付けるプリンターがありません。プリンターを選ぶか、あとでもう一度試してください。</translation>
    </message>
    <message>
        <source>The print server has no printer to print to.</source>
        <translation>プリントサーバーには、印刷できるプリンターがありません。</translation>
    </message>
</context>
<context>
    <name>PrinterDoubts</name>
    <message>
        <source>The jobs of this queue go to printers of different models: %1. What is set for one of them may come out differently on another.</source>
        <translation>このキューのジョブは機種の異なるプリンター（%1）に送られます。そのうちの 1 台のための設定は、ほかのプリンターでは異なる結果になることがあります。</translation>
    </message>
    <message>
        <source>The paper of this job is not loaded: %1. There is %2.</source>
        <translation>このジョブの用紙「%1」はセットされていません。セットされているのは%2です。</translation>
    </message>
</context>
<context>
    <name>PrinterPopUp</name>
    <message>
        <source>No printer</source>
        <translation>プリンターなし</translation>
    </message>
    <message>
        <source>Searching for printers…</source>
        <translation>プリンターを検索しています…</translation>
    </message>
    <message>
        <source>The other printers cannot be listed</source>
        <translation>ほかのプリンターを一覧できません</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>プリントサーバーからなくなりました</translation>
    </message>
    <message>
        <source>Jobs in the queue: %1</source>
        <translation>キューのジョブ: %1</translation>
    </message>
</context>
<context>
    <name>PrinterOpening</name>
    <message>
        <source>The plug-in could not attach its panels to this printer. Its rules and checks are missing.</source>
        <translation>プラグインのパネルをこのプリンターで使用できません。パネルによる設定の調整と確認は行われません。</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>An alert is over</source>
        <translation>警告は解除されました</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続しています</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>A filter of the server is not safe to run</source>
        <translation>サーバーのフィルターが安全に実行できません</translation>
    </message>
    <message>
        <source>A filter is missing on the server</source>
        <translation>サーバーにフィルターがありません</translation>
    </message>
    <message>
        <source>Waiting for the end of a job</source>
        <translation>ジョブの終了を待っています</translation>
    </message>
    <message>
        <source>Deactivated</source>
        <translation>無効になっています</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除されています</translation>
    </message>
    <message>
        <source>The developer is used up</source>
        <translation>現像剤がなくなりました</translation>
    </message>
    <message>
        <source>The developer is low</source>
        <translation>現像剤が残りわずかです</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>The fuser is too hot</source>
        <translation>定着器の温度が高すぎます</translation>
    </message>
    <message>
        <source>The fuser is too cold</source>
        <translation>定着器の温度が低すぎます</translation>
    </message>
    <message>
        <source>Hibernating</source>
        <translation>休止しています</translation>
    </message>
    <message>
        <source>New jobs are held</source>
        <translation>新しいジョブは保留されます</translation>
    </message>
    <message>
        <source>Making itself known</source>
        <translation>プリンターの場所を知らせています</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>給紙トレイがありません</translation>
    </message>
    <message>
        <source>An interlock is open</source>
        <translation>インターロックが開いています</translation>
    </message>
    <message>
        <source>A font or form is missing</source>
        <translation>フォントまたはフォームがありません</translation>
    </message>
    <message>
        <source>Ink or toner is used up</source>
        <translation>インクまたはトナーがなくなりました</translation>
    </message>
    <message>
        <source>Ink or toner is low</source>
        <translation>インクまたはトナーが残りわずかです</translation>
    </message>
    <message>
        <source>An ink or toner cartridge is missing</source>
        <translation>インクまたはトナーのカートリッジがありません</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>廃インク・廃トナー容器がまもなくいっぱいです</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>廃インク・廃トナー容器がいっぱいです</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>用紙がありません</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>紙づまりです</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>用紙が残りわずかです</translation>
    </message>
    <message>
        <source>Waiting for paper</source>
        <translation>用紙を待っています</translation>
    </message>
    <message>
        <source>Being stopped</source>
        <translation>停止しようとしています</translation>
    </message>
    <message>
        <source>Not connected or switched off</source>
        <translation>接続されていないか、電源が切れています</translation>
    </message>
    <message>
        <source>The drum is worn out</source>
        <translation>ドラムの寿命です</translation>
    </message>
    <message>
        <source>The drum is nearly worn out</source>
        <translation>ドラムの寿命が近づいています</translation>
    </message>
    <message>
        <source>Something is wrong</source>
        <translation>問題が起きています</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>排紙トレイがまもなくいっぱいです</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>排紙トレイがいっぱいです</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>排紙トレイがありません</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>Starting again</source>
        <translation>再開しています</translation>
    </message>
    <message>
        <source>Switched off</source>
        <translation>電源が切れています</translation>
    </message>
    <message>
        <source>The server has no room for jobs</source>
        <translation>サーバーにジョブを置く空きがありません</translation>
    </message>
    <message>
        <source>On standby</source>
        <translation>スタンバイ中です</translation>
    </message>
    <message>
        <source>Stopped in part</source>
        <translation>一部が停止しています</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>一時停止しています</translation>
    </message>
    <message>
        <source>Testing itself</source>
        <translation>自己診断をしています</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>プリンターが応答しません</translation>
    </message>
    <message>
        <source>Toner is used up</source>
        <translation>トナーがなくなりました</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>トナーが残りわずかです</translation>
    </message>
    <message>
        <source>The state is not known</source>
        <translation>状態が分かりません</translation>
    </message>
    <message>
        <source>Waiting for fonts</source>
        <translation>フォントを待っています</translation>
    </message>
    <message>
        <source>Bander: %1</source>
        <translation>帯掛け機: %1</translation>
    </message>
    <message>
        <source>Binder: %1</source>
        <translation>製本機: %1</translation>
    </message>
    <message>
        <source>Cleaner: %1</source>
        <translation>クリーナー: %1</translation>
    </message>
    <message>
        <source>Configuration: %1</source>
        <translation>構成: %1</translation>
    </message>
    <message>
        <source>Die cutter: %1</source>
        <translation>型抜き機: %1</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>紙折り機: %1</translation>
    </message>
    <message>
        <source>Imprinter: %1</source>
        <translation>インプリンター: %1</translation>
    </message>
    <message>
        <source>Paper feed: %1</source>
        <translation>給紙部: %1</translation>
    </message>
    <message>
        <source>Inserter: %1</source>
        <translation>インサーター: %1</translation>
    </message>
    <message>
        <source>Interpreter: %1</source>
        <translation>インタープリター: %1</translation>
    </message>
    <message>
        <source>Envelope maker: %1</source>
        <translation>封筒作成機: %1</translation>
    </message>
    <message>
        <source>Print head: %1</source>
        <translation>印字部: %1</translation>
    </message>
    <message>
        <source>Paper path: %1</source>
        <translation>用紙経路: %1</translation>
    </message>
    <message>
        <source>Output tray: %1</source>
        <translation>排紙トレイ: %1</translation>
    </message>
    <message>
        <source>Perforator: %1</source>
        <translation>ミシン目加工機: %1</translation>
    </message>
    <message>
        <source>Power: %1</source>
        <translation>電源: %1</translation>
    </message>
    <message>
        <source>Hole punch: %1</source>
        <translation>パンチ: %1</translation>
    </message>
    <message>
        <source>Cutter: %1</source>
        <translation>カッター: %1</translation>
    </message>
    <message>
        <source>Sheet rotator: %1</source>
        <translation>用紙回転部: %1</translation>
    </message>
    <message>
        <source>Slitter: %1</source>
        <translation>スリッター: %1</translation>
    </message>
    <message>
        <source>Stacker: %1</source>
        <translation>スタッカー: %1</translation>
    </message>
    <message>
        <source>Stapler: %1</source>
        <translation>ステープラー: %1</translation>
    </message>
    <message>
        <source>Stitcher: %1</source>
        <translation>中綴じ機: %1</translation>
    </message>
    <message>
        <source>A part: %1</source>
        <translation>部品: %1</translation>
    </message>
    <message>
        <source>Trimmer: %1</source>
        <translation>断裁機: %1</translation>
    </message>
    <message>
        <source>Wrapper: %1</source>
        <translation>包装機: %1</translation>
    </message>
    <message>
        <source>added</source>
        <translation>取り付けられました</translation>
    </message>
    <message>
        <source>almost empty</source>
        <translation>まもなく空です</translation>
    </message>
    <message>
        <source>almost full</source>
        <translation>まもなくいっぱいです</translation>
    </message>
    <message>
        <source>at its limit</source>
        <translation>限界に達しました</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>変更されました</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>閉じられました</translation>
    </message>
    <message>
        <source>set up anew</source>
        <translation>構成が変わりました</translation>
    </message>
    <message>
        <source>cover closed</source>
        <translation>カバーが閉じられました</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>full</source>
        <translation>いっぱいです</translation>
    </message>
    <message>
        <source>interlock closed</source>
        <translation>インターロックが閉じられました</translation>
    </message>
    <message>
        <source>interlock open</source>
        <translation>インターロックが開いています</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>つまりました</translation>
    </message>
    <message>
        <source>nearly worn out</source>
        <translation>寿命が近づいています</translation>
    </message>
    <message>
        <source>worn out</source>
        <translation>寿命です</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>ありません</translation>
    </message>
    <message>
        <source>motor failed</source>
        <translation>モーターの故障です</translation>
    </message>
    <message>
        <source>near its limit</source>
        <translation>限界に近づいています</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>オフラインです</translation>
    </message>
    <message>
        <source>opened</source>
        <translation>開かれました</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>温度が高すぎます</translation>
    </message>
    <message>
        <source>saving power</source>
        <translation>節電中です</translation>
    </message>
    <message>
        <source>failed for the moment</source>
        <translation>一時的な故障です</translation>
    </message>
    <message>
        <source>storage is short</source>
        <translation>記憶領域が不足しています</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>取り外されました</translation>
    </message>
    <message>
        <source>resource added</source>
        <translation>リソースが追加されました</translation>
    </message>
    <message>
        <source>resource removed</source>
        <translation>リソースが取り除かれました</translation>
    </message>
    <message>
        <source>thermistor failed</source>
        <translation>サーミスターの故障です</translation>
    </message>
    <message>
        <source>timing failed</source>
        <translation>タイミングの異常です</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源が切られました</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>電源が入りました</translation>
    </message>
    <message>
        <source>too cold</source>
        <translation>温度が低すぎます</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>故障です</translation>
    </message>
    <message>
        <source>storage failed</source>
        <translation>記憶領域の故障です</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>ウォームアップ中です</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>エラー: %1</translation>
    </message>
    <message>
        <source>Takes no jobs at present</source>
        <translation>現在ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>Stopped: jobs wait</source>
        <translation>停止中: ジョブは待機します</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
</context>
<context>
    <name>PrinterSource</name>
    <message>
        <source>There are more settings saved for %1 than the %2 that can be used.</source>
        <translation>%1 に保存された設定が、使用できる上限の %2 個を超えています。</translation>
    </message>
    <message>
        <source>The PPD of the queue %1 cannot be used. %2</source>
        <translation>キュー %1 の PPD は使用できません。%2</translation>
    </message>
    <message>
        <source>There is no printer to print to.</source>
        <translation>印刷できるプリンターがありません。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>The printer no longer has some of the settings that you used last: %1.</source>
        <translation>前回使った設定の一部が、このプリンターにはもうありません: %1。</translation>
    </message>
    <message>
        <source>The printer does not have some of the settings that are saved for %1: %2.</source>
        <translation>%1 に保存された設定の一部が、このプリンターにはありません: %2。</translation>
    </message>
</context>
<context>
    <name>ProgressStrip</name>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>The PPD cannot be copied to %1: %2</source>
        <translation>PPD を %1 にコピーできません（%2）</translation>
    </message>
    <message>
        <source>no name is free</source>
        <translation>使用できる名前がありません</translation>
    </message>
</context>
<context>
    <name>RemedyWords</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 と %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 ほか %2 件</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 is there for %2.</source>
        <translation>%2 なら %1 を選べます。</translation>
    </message>
    <message>
        <source>%1 is not there for %2. It is there for %3.</source>
        <translation>%2 では %1 は選べません。%3 なら選べます。</translation>
    </message>
    <message>
        <source>%1 is not there for %2. It is there with %3.</source>
        <translation>%2 では %1 は選べません。%3 にすると選べます。</translation>
    </message>
    <message>
        <source>%1 can be chosen.</source>
        <translation>%1 は選べます。</translation>
    </message>
    <message>
        <source>No setting of this printer gives %1.</source>
        <translation>このプリンターには %1 を選べる設定がありません。</translation>
    </message>
    <message>
        <source>There are too many conditions to explain why %1 is not there.</source>
        <translation>条件が多すぎるため、%1 を選べない理由を説明できません。</translation>
    </message>
    <message>
        <source>use %1</source>
        <translation>%1 を使う</translation>
    </message>
    <message>
        <source>turn on %1</source>
        <translation>%1 をオンにする</translation>
    </message>
    <message>
        <source>turn off %1</source>
        <translation>%1 をオフにする</translation>
    </message>
    <message>
        <source>use %1 and %2</source>
        <translation>%1 にして %2</translation>
    </message>
    <message>
        <source>turn on %1 and %2</source>
        <translation>%1 をオンにして %2</translation>
    </message>
    <message>
        <source>turn off %1 and %2</source>
        <translation>%1 をオフにして %2</translation>
    </message>
</context>
<context>
    <name>RequestChecks</name>
    <message>
        <source>Page %1 is beyond the document's last page, %2.</source>
        <translation>%1 ページは、文書の最終ページ (%2) を超えています。</translation>
    </message>
    <message>
        <source>%1 is beyond the last side that is printed, %2.</source>
        <translation>%1 は、印刷される最後の面 (%2) を超えています。</translation>
    </message>
</context>
<context>
    <name>StandardKeywords</name>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>印刷品質</translation>
    </message>
    <message>
        <source>Two-Sided Printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>用紙種類</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>排紙先</translation>
    </message>
    <message>
        <source>Paper Size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>Fast Grayscale</source>
        <translation>グレースケール（高速）</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>下書き</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>オフ（片面）</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>長辺とじ（縦）</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>短辺とじ（横）</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>メイントレイ</translation>
    </message>
    <message>
        <source>Alternate</source>
        <translation>代替トレイ</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手差し</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Photo Paper</source>
        <translation>写真用紙</translation>
    </message>
    <message>
        <source>Glossy Photo Paper</source>
        <translation>光沢写真用紙</translation>
    </message>
    <message>
        <source>Matte Photo Paper</source>
        <translation>マット写真用紙</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>封筒</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル紙</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>印刷面を下</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>印刷面を上</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
</context>
<context>
    <name>SummaryPart</name>
    <message>
        <source>Only What Differs from the Printer's Defaults</source>
        <translation>プリンターの既定値と異なるものだけ</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>テキストとしてコピー</translation>
    </message>
</context>
<context>
    <name>Supplies</name>
    <message>
        <source>Supply %1</source>
        <translation>消耗品 %1</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Some left</source>
        <translation>残りあり</translation>
    </message>
    <message>
        <source>Some room left</source>
        <translation>空きあり</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1% full</source>
        <translation>%1% 使用済み</translation>
    </message>
    <message>
        <source>Low: %1%</source>
        <translation>残りわずか: %1%</translation>
    </message>
    <message>
        <source>Almost full: %1%</source>
        <translation>もうすぐいっぱい: %1%</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>いっぱい</translation>
    </message>
    <message>
        <source>Used up in the printer: %1.</source>
        <translation>プリンターで切れています: %1。</translation>
    </message>
    <message>
        <source>Full in the printer: %1.</source>
        <translation>プリンターでいっぱいになっています: %1。</translation>
    </message>
    <message>
        <source>Running low in the printer: %1.</source>
        <translation>プリンターで残りが少なくなっています: %1。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>SuppliesPane</name>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Paper in the printer:</source>
        <translation>プリンターの用紙:</translation>
    </message>
</context>
<context>
    <name>WhyCommand</name>
    <message>
        <source>This cannot be explained.</source>
        <translation>理由を説明できません。</translation>
    </message>
</context>
<context>
    <name>RequestedSettings</name>
    <message>
        <source>%1=%2 and %1=%3 cannot both be had: ask for one of them.</source>
        <translation>%1=%2 と %1=%3 を同時に指定することはできません。どちらか一方を指定してください。</translation>
    </message>
</context>
<context>
    <name>SavedJob</name>
    <message>
        <source>The printer does not have some of the settings that the job was saved with: %1.</source>
        <translation>このジョブの設定の一部はこのプリンターにありません: %1。</translation>
    </message>
    <message>
        <source>%1 is a saved job: it is sent as it was saved, without -o, --paper and --output.</source>
        <translation>%1 は保存されたジョブです。保存したときの設定で送信するため、-o、--paper、--output は使えません。</translation>
    </message>
    <message>
        <source>%1 is a saved job: it is sent alone, with no other document beside it.</source>
        <translation>%1 は保存されたジョブです。ほかの文書とは別に送信してください。</translation>
    </message>
    <message>
        <source>%1 is not sent: it sets %2, which no saved job may.</source>
        <translation>%1 は送信しません。保存されたジョブでは設定できない %2 が含まれています。</translation>
    </message>
    <message>
        <source>%1 is not sent: it sets %2, which Velkaro Print does not write; --yes sends it all the same.</source>
        <translation>%1 は送信しません。Velkaro Print が書き込まない設定 %2 が含まれています。それでも送信するには --yes を指定してください。</translation>
    </message>
    <message>
        <source>The job in %1 can be looked at but not sent: it sets %2, which no saved job may. Remove that from the settings saved for the queue.</source>
        <translation>%1 のジョブは内容を確認できますが、送信はできません。保存されたジョブでは設定できない %2 が含まれています。キューに保存した設定から削除してください。</translation>
    </message>
</context>
<context>
    <name>SearchList</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>SavedOptions</name>
    <message>
        <source>There are no settings saved as &quot;%1&quot; for the printer %2.</source>
        <translation>プリンター %2 に「%1」という名前で保存された設定はありません。</translation>
    </message>
</context>
<context>
    <name>ScalingSentences</name>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Fit to the Printable Area</source>
        <translation>印刷可能範囲に収める</translation>
    </message>
    <message>
        <source>Fill the Sheet</source>
        <translation>用紙いっぱいに広げる</translation>
    </message>
    <message>
        <source>Fill the Printable Area</source>
        <translation>印刷可能範囲いっぱいに広げる</translation>
    </message>
    <message>
        <source>Pages that are larger than the paper are made just small enough to cover it, and what does not fit is cut off. All others keep their size.</source>
        <translation>用紙より大きいページは用紙全体を覆う大きさまで縮小し、はみ出す部分は印刷しません。ほかのページは元のサイズのままです。</translation>
    </message>
    <message>
        <source>Pictures that are larger than the printable area are made smaller. All others keep their size.</source>
        <translation>印刷可能範囲より大きい画像は縮小します。ほかの画像は元のサイズのままです。</translation>
    </message>
    <message>
        <source>Pages that are larger than the paper are made smaller. All others keep their size.</source>
        <translation>用紙より大きいページは縮小します。ほかのページは元のサイズのままです。</translation>
    </message>
    <message>
        <source>Every page keeps its size, in the middle of the paper. What does not fit is cut off.</source>
        <translation>どのページも元のサイズのまま用紙の中央に印刷します。はみ出す部分は印刷しません。</translation>
    </message>
    <message>
        <source>Every picture is made as large as fits as a whole. The print server leaves twice the paper&apos;s margins around it; borderless paper has none.</source>
        <translation>画像全体が収まるいちばん大きいサイズにします。プリントサーバーは画像の周りに用紙の余白の2倍を空けます。フチなし用紙には余白がありません。</translation>
    </message>
    <message>
        <source>Every page is made as large as fits on the paper as a whole.</source>
        <translation>ページ全体が用紙に収まるいちばん大きいサイズにします。</translation>
    </message>
    <message>
        <source>Every page is made so large that no place stays white. What does not fit is cut off.</source>
        <translation>用紙に白い部分が残らない大きさにします。はみ出す部分は印刷しません。</translation>
    </message>
    <message>
        <source>Every picture is cut to the shape of the printable area. The print server leaves twice the paper&apos;s margins around it; borderless paper has none.</source>
        <translation>画像を印刷可能範囲の形に切り抜きます。プリントサーバーは画像の周りに用紙の余白の2倍を空けます。フチなし用紙には余白がありません。</translation>
    </message>
    <message>
        <source>Every page is made so large that only the paper&apos;s margins stay white. What does not fit is cut off.</source>
        <translation>用紙の余白だけが白く残る大きさにします。はみ出す部分は印刷しません。</translation>
    </message>
</context>
<context>
    <name>Server</name>
    <message>
        <source>The queue %1 has no PPD.</source>
        <translation>キュー %1 には PPD がありません。</translation>
    </message>
    <message>
        <source>The PPD of the queue %1 is too large.</source>
        <translation>キュー %1 の PPD は大きすぎます。</translation>
    </message>
    <message>
        <source>The print server %1 sent only part of the PPD of the queue %2. Try again.</source>
        <translation>プリントサーバー %1 から、キュー %2 の PPD が一部しか届きませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>プリントサーバー %1 に接続できません。</translation>
    </message>
    <message>
        <source>The print server %1 broke off: %2.</source>
        <translation>プリントサーバー %1 との接続が切れました（%2）。</translation>
    </message>
    <message>
        <source>The print server %1 closed the connection without an answer.</source>
        <translation>プリントサーバー %1 が応答せずに接続を閉じました。</translation>
    </message>
    <message>
        <source>The print server %1 broke off in the middle of its answer.</source>
        <translation>プリントサーバー %1 の応答が途中で切れました。</translation>
    </message>
    <message>
        <source>The answer of the print server %1 cannot be understood.</source>
        <translation>プリントサーバー %1 の応答を解釈できません。</translation>
    </message>
    <message>
        <source>The answer of the print server %1 is too large.</source>
        <translation>プリントサーバー %1 の応答が大きすぎます。</translation>
    </message>
    <message>
        <source>What the print server %1 sends cannot be kept in the temporary folder %2: %3.</source>
        <translation>プリントサーバー %1 から届くデータを一時フォルダー %2 に保存できません（%3）。</translation>
    </message>
    <message>
        <source>Printing was cancelled.</source>
        <translation>印刷はキャンセルされました。</translation>
    </message>
    <message>
        <source>The print server %1 has no queue %2.</source>
        <translation>プリントサーバー %1 に %2 というキューはありません。</translation>
    </message>
    <message>
        <source>The print server %1 does not know what it was asked for.</source>
        <translation>プリントサーバー %1 には、要求された情報がありません。</translation>
    </message>
    <message>
        <source>The print server %1 lets nobody print to %2 without a password.</source>
        <translation>プリントサーバー %1 では、パスワードなしで %2 に印刷できません。</translation>
    </message>
    <message>
        <source>The print server %1 answers nobody without a password.</source>
        <translation>プリントサーバー %1 は、パスワードなしでは応答しません。</translation>
    </message>
    <message>
        <source>The print server %1 refused: %2</source>
        <translation>プリントサーバー %1 に拒否されました: %2</translation>
    </message>
    <message>
        <source>The print server %1 reports a fault: %2</source>
        <translation>プリントサーバー %1 で障害が発生しています: %2</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this machine to print to %2.</source>
        <translation>プリントサーバー %1 は、このコンピューターから %2 への印刷を許可していません。</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this machine to ask.</source>
        <translation>プリントサーバー %1 は、このコンピューターからの問い合わせを許可していません。</translation>
    </message>
    <message>
        <source>The print server %1 answered with a redirection, which is not followed (%2).</source>
        <translation>プリントサーバー %1 から転送先が示されましたが、転送には対応していません（%2）。</translation>
    </message>
    <message>
        <source>The print server %1 demands an encrypted connection, which cannot be made.</source>
        <translation>プリントサーバー %1 は暗号化された接続を要求していますが、その接続を確立できません。</translation>
    </message>
    <message>
        <source>The print server %1 has a fault (%2).</source>
        <translation>プリントサーバー %1 に障害があります（%2）。</translation>
    </message>
    <message>
        <source>The print server %1 refused (%2).</source>
        <translation>プリントサーバー %1 に拒否されました（%2）。</translation>
    </message>
    <message>
        <source>The print server %1 does not answer.</source>
        <translation>プリントサーバー %1 が応答しません。</translation>
    </message>
    <message>
        <source>The print server %1 takes too long to answer.</source>
        <translation>プリントサーバー %1 の応答に時間がかかりすぎています。</translation>
    </message>
    <message>
        <source>The print server %1 does not accept the user name and the password.</source>
        <translation>プリントサーバー %1 はユーザー名とパスワードを受け付けません。</translation>
    </message>
    <message>
        <source>The print server %1 shows another certificate than before, and may be another server: nothing was sent. The one before is in %2.</source>
        <translation>プリントサーバー %1 の証明書が以前と異なります。別のサーバーのおそれがあるため、何も送信されませんでした。以前の証明書は %2 にあります。</translation>
    </message>
    <message>
        <source>The queue %1 was set up anew on the print server: it has another PPD, or other defaults.</source>
        <translation>プリントサーバーでキュー %1 の設定が変更されました。PPD またはその既定値が以前と異なります。</translation>
    </message>
</context>
<context>
    <name>SettingRequests</name>
    <message>
        <source>It can be: %1.</source>
        <translation>使える値: %1。</translation>
    </message>
    <message>
        <source>It can be: %1 and %2 more.</source>
        <translation>使える値: %1、ほか %2 個。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%2 is no value for %1.</source>
        <translation>%2 は %1 の値として使えません。</translation>
    </message>
    <message>
        <source>%1 cannot be set: the queue has no PPD.</source>
        <translation>キューに PPD がないため、%1 は設定できません。</translation>
    </message>
    <message>
        <source>The printer has no setting %1.</source>
        <translation>プリンターに %1 という設定はありません。</translation>
    </message>
    <message>
        <source>%1 stands for several choices of this printer.</source>
        <translation>%1 に当てはまる選択肢が、このプリンターには複数あります。</translation>
    </message>
    <message>
        <source>%1 cannot be chosen while the other settings are as they are.</source>
        <translation>現在のほかの設定では、%1 は選べません。</translation>
    </message>
    <message>
        <source>%1 cannot be chosen while the other settings are as they are. %2 is %3 instead.</source>
        <translation>現在のほかの設定では、%1 は選べません。%2 は「%3」になります。</translation>
    </message>
    <message>
        <source>A paper of a size of your own needs that size, such as Custom.100x150mm.</source>
        <translation>カスタムサイズの用紙には大きさの指定が必要です（例: Custom.100x150mm）。</translation>
    </message>
    <message>
        <source>The printer has no paper %1.</source>
        <translation>プリンターに %1 という用紙はありません。</translation>
    </message>
    <message>
        <source>The printer takes no paper of a size of your own.</source>
        <translation>このプリンターではカスタムサイズの用紙は使えません。</translation>
    </message>
    <message>
        <source>The printer takes no paper of %1 × %2 mm: sizes of your own go from %3 × %4 mm to %5 × %6 mm.</source>
        <translation>このプリンターでは %1 × %2 mm の用紙を使用できません。指定できるサイズは %3 × %4 mm から %5 × %6 mm までです。</translation>
    </message>
</context>
<context>
    <name>SettingTitle</name>
    <message>
        <source>Paper in the Printer</source>
        <translation>プリンターの用紙</translation>
    </message>
    <message>
        <source>Document Page</source>
        <translation>文書のページ</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>拡大縮小</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>向き</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Color Management</source>
        <translation>カラーマネージメント</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>ジョブのタイトル</translation>
    </message>
</context>
<context>
    <name>SummaryPane</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
</context>
<context>
    <name>ListAdvice</name>
    <message>
        <source>Not to be had now: %1</source>
        <translation>今は選べないもの: %1</translation>
    </message>
</context>
<context>
    <name>YieldedSettings</name>
    <message>
        <source>%1 cannot be chosen together with what was asked for; it is sent as it was saved.</source>
        <translation>%1 は、指定された設定と一緒には選べません。保存されたとおりに送信します。</translation>
    </message>
    <message>
        <source>Saved for this printer: %1</source>
        <translation>このプリンター用に保存された設定: %1</translation>
    </message>
</context>
<context>
    <name>KeptSettings</name>
    <message>
        <source>other changes: %1</source>
        <translation>ほかの変更: %1 件</translation>
    </message>
</context>
</TS>
