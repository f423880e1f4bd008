<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Panel names -->
    <message>
        <source>Print Setting</source>
        <translation>印刷設定</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>カラー設定</translation>
    </message>
    <!-- Buttons and switches -->
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Suppression</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <!-- Summary -->
    <message>
        <source>Model</source>
        <translation>プリンターの機種</translation>
    </message>
    <!-- Advanced sections -->
    <message>
        <source>advancedItem</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>カラー調整</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>「%1」のセクション</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>その他の設定</translation>
    </message>
    <!-- Paper names, as the page setup's menu has them -->
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <!-- Why a choice is not there -->
    <message>
        <source>Why Not VKBiDir=ON</source>
        <translation>用紙の種類や印刷品質によっては、線や面にむらが出ないように、片方向だけで印刷します。</translation>
    </message>
    <!-- Paper that the printer cannot take -->
    <message>
        <source>Unsupported Paper Title</source>
        <translation>この用紙サイズは使用できません</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>選択された用紙は、このプリンターで使用できる大きさの範囲を超えているため、印刷を中止しました。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. ページ設定を開いてください。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. 一覧から用紙サイズを選ぶか、使用できる範囲内のカスタムサイズを入力してください。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. もう一度印刷してください。</translation>
    </message>
    <!-- Best quality on special paper -->
    <message>
        <source>Best Alert</source>
        <translation>「最高品質」では印刷に時間がかかります</translation>
    </message>
    <message>
        <source>Highest Alert2</source>
        <translation>この用紙種類では、インクを細かく重ねて印刷します。早く印刷したいときは、ほかの印刷品質を選んでください。現在の設定はそのまま使用されます。</translation>
    </message>
    <!-- Borderless paper -->
    <message>
        <source>Borderless Alert</source>
        <translation>四辺フチなし印刷では、この設定を使用できません</translation>
    </message>
    <message>
        <source>Borderless Alert2</source>
        <translation>四辺フチなし印刷では、OHPフィルムと最も速い印刷品質は使用できません。用紙種類または印刷品質を、使用できるものに変更します。設定を変えたくないときは、フチのある用紙サイズを選んでください。</translation>
    </message>
    <!-- Printable discs -->
    <message>
        <source>DiscPrint Alert</source>
        <translation>ディスクはディスクトレイにセットされていますか？</translation>
    </message>
    <message>
        <source>DiscPrint Alert2</source>
        <translation>印刷面を上にしてディスクをディスクトレイに置き、トレイをプリンターの目印の位置まで差し込んでから、[OK]をクリックしてください。設定を変更するときは、[キャンセル]をクリックしてください。</translation>
    </message>
    <!-- Japanese envelopes -->
    <message>
        <source>Envelope Alert Title</source>
        <translation>封筒をセットしてください</translation>
    </message>
    <message>
        <source>Envelope Alert1</source>
        <translation>印刷する前に、封筒を平らにならし、絵のようにふたを開いてください。</translation>
    </message>
    <message>
        <source>Envelope Alert2 Lark22</source>
        <translation>印刷する面を下に、ふたを手前にして、給紙カセットにセットしてください。用紙ガイドを封筒に合わせてください。</translation>
    </message>
    <message>
        <source>Envelope Alert2 Lark22 MP</source>
        <translation>印刷する面を上に、ふたを手前にして、多目的トレイにセットし、給紙方法で多目的トレイを選んでください。用紙ガイドを封筒に合わせてください。</translation>
    </message>
    <message>
        <source>Envelope Caution</source>
        <translation>窓付きの封筒、のりが露出している封筒、ふたを閉じた封筒は使用しないでください。紙づまりの原因になります。</translation>
    </message>
    <!-- Two-sided printing -->
    <message>
        <source>Duplex Alert</source>
        <translation>この用紙には両面印刷できません</translation>
    </message>
    <message>
        <source>Duplex Alert2</source>
        <translation>両面印刷をオフにするか、A4、A3、レターなど、両面印刷できる用紙サイズを選んでください。</translation>
    </message>
    <!-- Paper orientation -->
    <message>
        <source>Paper Orientation Title</source>
        <translation>用紙の向きを確認してください</translation>
    </message>
    <!-- What a look at a PPD finds: keyword, choice, and how the panels spell it -->
    <message>
        <source>PPD Choice Unknown</source>
        <translation>%1 の選択肢 %2 は設定パネルが認識できません。</translation>
    </message>
    <message>
        <source>PPD Choice Missing</source>
        <translation>%1 に、設定パネルが自動的に選ぶ選択肢 %2 がありません。</translation>
    </message>
    <message>
        <source>PPD Letters</source>
        <translation>%1 の選択肢 %2 は、設定パネルでは %3 と書きます。大文字と小文字を合わせないと別の選択肢とみなされます。</translation>
    </message>
    <message>
        <source>PPD Default</source>
        <translation>%1 の初期値 %2 と同じつづりの選択肢がありません。</translation>
    </message>
    <message>
        <source>PPD Partner Missing</source>
        <translation>%1 に必要な %2 が PPD にありません。</translation>
    </message>
    <message>
        <source>PPD Picture</source>
        <translation>%1 の選択肢 %2 には、プレビュー用の画像がありません。</translation>
    </message>
</context>
</TS>
