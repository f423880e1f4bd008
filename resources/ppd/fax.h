// Where the job goes: onto paper, or down the telephone line.

Group "VKDestination/Destination"

Option "VKOutput/Output" PickOne AnySetup 10
*Choice "Printer/Printer" "%% VKOutput=Printer"
 Choice "FAX/Fax" "%% VKOutput=FAX"
