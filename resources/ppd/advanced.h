// Two switches of the print head and the ink that every model has.

Group "VKAdvanced/Advanced"

Option "VKBiDir/Bi-Directional Printing" PickOne AnySetup 40
 Choice "OFF/Off" "%% VKBiDir=OFF"
*Choice "ON/On" "%% VKBiDir=ON"

Option "VKSlowDrying/Slow Drying Paper" PickOne AnySetup 40
*Choice "OFF/Off" "%% VKSlowDrying=OFF"
 Choice "ON/On" "%% VKSlowDrying=ON"
