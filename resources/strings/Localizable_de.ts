<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Panel names -->
    <message>
        <source>Print Setting</source>
        <translation>Druckeinstellungen</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Farbeinstellungen</translation>
    </message>
    <!-- Buttons and switches -->
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Suppression</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <!-- Summary -->
    <message>
        <source>Model</source>
        <translation>Druckermodell</translation>
    </message>
    <!-- Advanced sections -->
    <message>
        <source>advancedItem</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Farbkorrektur</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt: %1</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Weitere Optionen</translation>
    </message>
    <!-- Paper names, as the page setup's menu has them -->
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <!-- Why a choice is not there -->
    <message>
        <source>Why Not VKBiDir=ON</source>
        <translation>Manche Medien und Druckqualitäten werden mit Absicht nur in einer Richtung gedruckt, damit Linien und Flächen gleichmäßig bleiben.</translation>
    </message>
    <!-- Paper that the printer cannot take -->
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Dieses Papierformat kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>Das gewählte Papier ist für diesen Drucker zu groß oder zu klein. Das Dokument wurde daher nicht gedruckt.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Öffnen Sie „Seite einrichten“.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Wählen Sie eines der Papierformate des Druckers, oder geben Sie ein eigenes Format innerhalb der Grenzen des Druckers ein.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Drucken Sie erneut.</translation>
    </message>
    <!-- Best quality on special paper -->
    <message>
        <source>Best Alert</source>
        <translation>In bester Qualität dauert das Drucken länger</translation>
    </message>
    <message>
        <source>Highest Alert2</source>
        <translation>Auf diesem Medientyp trägt der Drucker die Tinte in vielen feinen Durchgängen auf. Wählen Sie eine niedrigere Druckqualität, um schneller zu drucken. Ihre Auswahl bleibt unverändert.</translation>
    </message>
    <!-- Borderless paper -->
    <message>
        <source>Borderless Alert</source>
        <translation>Diese Einstellung ist beim randlosen Druck nicht möglich</translation>
    </message>
    <message>
        <source>Borderless Alert2</source>
        <translation>Folien und die schnellste Druckqualität sind auf randlosem Papier nicht möglich. Der Medientyp oder die Druckqualität wird entsprechend geändert. Um Ihre Einstellung beizubehalten, wählen Sie ein Papierformat mit Rand.</translation>
    </message>
    <!-- Printable discs -->
    <message>
        <source>DiscPrint Alert</source>
        <translation>Liegt die Disc in der Disc-Lade?</translation>
    </message>
    <message>
        <source>DiscPrint Alert2</source>
        <translation>Legen Sie eine bedruckbare Disc mit der bedruckbaren Seite nach oben in die Disc-Lade, und schieben Sie die Lade bis zu den Markierungen am Drucker ein. Klicken Sie dann auf „OK“. Um zuerst die Einstellungen zu ändern, klicken Sie auf „Abbrechen“.</translation>
    </message>
    <!-- Japanese envelopes -->
    <message>
        <source>Envelope Alert Title</source>
        <translation>Umschläge einlegen</translation>
    </message>
    <message>
        <source>Envelope Alert1</source>
        <translation>Drücken Sie die Umschläge vor dem Drucken flach, und klappen Sie die Laschen um, wie im Bild gezeigt.</translation>
    </message>
    <message>
        <source>Envelope Alert2 Lark22</source>
        <translation>Legen Sie sie mit der zu bedruckenden Seite nach unten und den Laschen zu Ihnen in die Papierkassette ein. Schieben Sie die Papierführungen an die Umschläge.</translation>
    </message>
    <message>
        <source>Envelope Alert2 Lark22 MP</source>
        <translation>Legen Sie sie mit der zu bedruckenden Seite nach oben und den Laschen zu Ihnen in das Mehrzweckfach ein, und wählen Sie das Mehrzweckfach als Papierquelle. Schieben Sie die Papierführungen an die Umschläge.</translation>
    </message>
    <message>
        <source>Envelope Caution</source>
        <translation>Verwenden Sie keine Umschläge mit Fenster, mit offen liegendem Klebstoff oder mit bereits verschlossenen Laschen: Sie können im Drucker einen Stau verursachen.</translation>
    </message>
    <!-- Two-sided printing -->
    <message>
        <source>Duplex Alert</source>
        <translation>Dieses Papier kann nicht beidseitig bedruckt werden</translation>
    </message>
    <message>
        <source>Duplex Alert2</source>
        <translation>Schalten Sie den beidseitigen Druck aus, oder wählen Sie ein Papierformat, das der Drucker wenden kann, etwa A4, A3 oder Letter.</translation>
    </message>
    <!-- Paper orientation -->
    <message>
        <source>Paper Orientation Title</source>
        <translation>Papierausrichtung prüfen</translation>
    </message>
    <!-- What a look at a PPD finds: keyword, choice, and how the panels spell it -->
    <message>
        <source>PPD Choice Unknown</source>
        <translation>Die Bereiche kennen die Auswahl %2 von %1 nicht.</translation>
    </message>
    <message>
        <source>PPD Choice Missing</source>
        <translation>%1 fehlt die Auswahl %2, die die Bereiche von sich aus setzen.</translation>
    </message>
    <message>
        <source>PPD Letters</source>
        <translation>Die Auswahl %2 von %1 heißt für die Bereiche %3: Schreiben Sie sie so, sonst halten sie sie für eine andere.</translation>
    </message>
    <message>
        <source>PPD Default</source>
        <translation>%2, der Standard von %1, ist in dieser Schreibweise keine der Auswahlmöglichkeiten.</translation>
    </message>
    <message>
        <source>PPD Partner Missing</source>
        <translation>%1 braucht %2, das in der PPD-Datei fehlt.</translation>
    </message>
    <message>
        <source>PPD Picture</source>
        <translation>Die Vorschau hat kein Bild für die Auswahl %2 von %1.</translation>
    </message>
</context>
</TS>
