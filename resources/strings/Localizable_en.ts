<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Panel names -->
    <message>
        <source>Print Setting</source>
        <translation>Print Settings</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Color Settings</translation>
    </message>
    <!-- Buttons and switches -->
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>On</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Suppression</source>
        <translation>Do not show this message again</translation>
    </message>
    <!-- Summary -->
    <message>
        <source>Model</source>
        <translation>Printer Model</translation>
    </message>
    <!-- Advanced sections -->
    <message>
        <source>advancedItem</source>
        <translation>Advanced Settings</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Color Enhancement</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Section: %1</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revert</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Other Options</translation>
    </message>
    <!-- Paper names, as the page setup's menu has them -->
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <!-- Why a choice is not there -->
    <message>
        <source>Why Not VKBiDir=ON</source>
        <translation>Some media types and print qualities are printed in one direction on purpose, so that lines and areas stay even.</translation>
    </message>
    <!-- Paper that the printer cannot take -->
    <message>
        <source>Unsupported Paper Title</source>
        <translation>This paper size cannot be used</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>The selected paper is too large or too small for this printer, so the document was not printed.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Open the page setup.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Choose one of the printer's own paper sizes, or enter a custom size within the printer's limits.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Print again.</translation>
    </message>
    <!-- Best quality on special paper -->
    <message>
        <source>Best Alert</source>
        <translation>Best quality takes longer to print</translation>
    </message>
    <message>
        <source>Highest Alert2</source>
        <translation>On this media type the printer lays down the ink in many fine passes. For a faster print, choose a lower print quality. Your choice stays as it is.</translation>
    </message>
    <!-- Borderless paper -->
    <message>
        <source>Borderless Alert</source>
        <translation>Borderless printing cannot use this setting</translation>
    </message>
    <message>
        <source>Borderless Alert2</source>
        <translation>Transparencies and the fastest print quality are not available on borderless paper. The media type or the print quality will be changed to one that is. To keep your setting, choose a paper size with borders.</translation>
    </message>
    <!-- Printable discs -->
    <message>
        <source>DiscPrint Alert</source>
        <translation>Is the disc in the disc tray?</translation>
    </message>
    <message>
        <source>DiscPrint Alert2</source>
        <translation>Place a printable disc in the disc tray with the printable side facing up, and insert the tray up to the marks on the printer. Then click OK. To change the settings first, click Cancel.</translation>
    </message>
    <!-- Japanese envelopes -->
    <message>
        <source>Envelope Alert Title</source>
        <translation>Load the envelopes</translation>
    </message>
    <message>
        <source>Envelope Alert1</source>
        <translation>Before printing, press the envelopes flat and fold back the flaps as the picture shows.</translation>
    </message>
    <message>
        <source>Envelope Alert2 Lark22</source>
        <translation>Load them into the paper cassette with the side to be printed facing down and the flaps toward you. Move the paper guides against the envelopes.</translation>
    </message>
    <message>
        <source>Envelope Alert2 Lark22 MP</source>
        <translation>Load them into the multi-purpose tray with the side to be printed facing up and the flaps toward you, and choose the multi-purpose tray as paper source. Move the paper guides against the envelopes.</translation>
    </message>
    <message>
        <source>Envelope Caution</source>
        <translation>Do not use envelopes with windows, with adhesive that is exposed, or with flaps that are already sealed: they can jam in the printer.</translation>
    </message>
    <!-- Two-sided printing -->
    <message>
        <source>Duplex Alert</source>
        <translation>This paper cannot be printed on both sides</translation>
    </message>
    <message>
        <source>Duplex Alert2</source>
        <translation>Turn off two-sided printing, or choose a paper size that the printer can turn over, such as A4, A3 or Letter.</translation>
    </message>
    <!-- Paper orientation -->
    <message>
        <source>Paper Orientation Title</source>
        <translation>Check the paper orientation</translation>
    </message>
    <!-- What a look at a PPD finds: keyword, choice, and how the panels spell it -->
    <message>
        <source>PPD Choice Unknown</source>
        <translation>The panels do not know the choice %2 of %1.</translation>
    </message>
    <message>
        <source>PPD Choice Missing</source>
        <translation>%1 lacks the choice %2, which the panels set by themselves.</translation>
    </message>
    <message>
        <source>PPD Letters</source>
        <translation>The choice %2 of %1 is %3 to the panels: spell it so, or they take it for another one.</translation>
    </message>
    <message>
        <source>PPD Default</source>
        <translation>%2, the default of %1, is none of its choices as they are spelt.</translation>
    </message>
    <message>
        <source>PPD Partner Missing</source>
        <translation>%1 needs %2, which the PPD lacks.</translation>
    </message>
    <message>
        <source>PPD Picture</source>
        <translation>The preview has no picture for the choice %2 of %1.</translation>
    </message>
</context>
</TS>
