<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Paper and Toner</source>
        <translation>用紙とトナー</translation>
    </message>
    <message>
        <source>Print darkest although toner is to be saved?</source>
        <translation>トナーの節約が選ばれていますが、最も濃く印刷しますか?</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Why Not ExMedium=Card</source>
        <translation>カードは背面から 1 枚ずつ印刷するため、小さい用紙でしか使えません。</translation>
    </message>
</context>
</TS>
