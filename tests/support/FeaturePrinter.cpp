#include "tests/support/FeaturePrinter.h"

QByteArray featurePrinter()
{
    return PPDSource()
               .attribute("Manufacturer", "Example")
               .papers({{"A4", 595, 842}, {"A5", 420, 595}})
               .option("Duplex/Two-Sided", {"None/Off", "DuplexNoTumble/Long Edge"})
               .text() +
           R"(*cupsLanguages: "de ja"
*OpenGroup: Finishing/Finishing
*OpenUI *Finisher/Finish: PickMany
*DefaultFinisher: None
*Finisher None/Nothing: ""
*Finisher Staple/Staple: ""
*Finisher Punch/Punch & Fold: ""
*CloseUI: *Finisher
*OpenUI *Jog/Jog Stacks: Boolean
*DefaultJog: False
*Jog True/Yes: ""
*Jog False/No: ""
*CloseUI: *Jog
*CloseGroup: Finishing
*OpenGroup: Paper/Paper Handling
*OpenUI *Weight/Paper Weight: PickOne
*DefaultWeight: Light
*Weight Light/Light: ""
*Weight Heavy/Heavy: ""
*CloseUI: *Weight
*CustomWeight True: ""
*ParamCustomWeight Grams/Grams: 1 int 60 300
*OpenUI *Stamp/Stamp: PickOne
*DefaultStamp: Off
*Stamp Off/No Stamp: ""
*CloseUI: *Stamp
*CustomStamp True/Own Stamp: ""
*ParamCustomStamp Angle/Angle: 2 real -90 90
*ParamCustomStamp Text/Words: 1 string 1 20
*ParamCustomStamp Offset/Offset: 3 points 0 200
*OpenUI *Hold/Private Print: PickOne
*DefaultHold: Off
*Hold Off/Off: ""
*CloseUI: *Hold
*CustomHold True/With Code: ""
*ParamCustomHold Code/Code: 1 passcode 4 8
*OpenUI *Tone/Tone: PickOne
*DefaultTone: Plain
*Tone Plain/Plain: ""
*CloseUI: *Tone
*CustomTone True: ""
*ParamCustomTone Gamma/Gamma: 1 curve 0.5 2.5
*ParamCustomTone Inverse/Inverse: 2 invcurve 0.5 2.5
*ParamCustomTone Key/Key: 3 password 0 12
*OpenUI *Alone/Alone: PickOne
*DefaultAlone: Only
*Alone Only/Only: ""
*CloseUI: *Alone
*OpenUI *copies/Evil Copies: PickOne
*Defaultcopies: 1
*copies 1/One: ""
*copies 99/Many: ""
*CloseUI: *copies
*CloseGroup: Paper
*OpenGroup: InstallableOptions/Options Installed
*OpenUI *Tray2/Second Tray: Boolean
*DefaultTray2: True
*Tray2 True/Installed: ""
*Tray2 False/Not Installed: ""
*CloseUI: *Tray2
*CloseGroup: InstallableOptions
*UIConstraints: *Weight Heavy *Jog True
*UIConstraints: *Jog True *Weight Heavy
*UIConstraints: *Finisher Staple *Weight Heavy
*UIConstraints: *Weight Heavy *Finisher Staple
*de.Translation Finishing/Weiterverarbeitung: ""
*de.Translation Finisher/Endverarbeitung: ""
*de.Finisher Staple/Heften: ""
*de.Translation Weight/Papiergewicht: ""
*de.ParamCustomWeight Grams/Gramm: ""
*ja.Translation Weight/用紙の厚さ: ""
*ja.Weight Heavy/厚い: ""
*ja.CustomStamp True/自由なスタンプ: ""
*ja.ParamCustomStamp Text/文字: ""
)";
}
