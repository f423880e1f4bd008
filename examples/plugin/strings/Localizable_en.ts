<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Paper and Toner</source>
        <translation>Paper and Toner</translation>
    </message>
    <message>
        <source>Print darkest although toner is to be saved?</source>
        <translation>Print darkest although toner is to be saved?</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Why Not ExMedium=Card</source>
        <translation>Cards are printed one by one from the rear, where only small paper fits.</translation>
    </message>
</context>
</TS>
