// Two-sided printing: the dialog's own choice, and how the printer goes about it.

Group "VKPrintSettings/Print Settings"

Option "Duplex/Two-Sided Printing" PickOne AnySetup 20
*Choice "None/Off" "<</Duplex false>>setpagedevice"
 Choice "DuplexNoTumble/Long-Edge Binding" "<</Duplex true/Tumble false>>setpagedevice"
 Choice "DuplexTumble/Short-Edge Binding" "<</Duplex true/Tumble true>>setpagedevice"

Option "VKDuplexMode/Two-Sided Print Mode" PickOne AnySetup 40
*Choice "Standard/Standard" "%% VKDuplexMode=Standard"
 Choice "Fast/Fast (Less Ink)" "%% VKDuplexMode=Fast"
 Choice "Fine/Fine (Longer Drying)" "%% VKDuplexMode=Fine"
