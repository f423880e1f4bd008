// The papers of the A3 models. "Short grain" is A3 paper whose fibres run across it.
//
// Name and text, width and length in points, then the margins left, bottom, right, top (points;
// borderless papers have none), then what is sent for PageSize and for PageRegion.

CustomMedia "A3/A3" 842 1191 9 9 9 9 "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice" "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice"
CustomMedia "A3.Fullbleed/A3 (Borderless)" 842 1191 0 0 0 0 "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice" "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice"
CustomMedia "A3.LongGrain/A3 (Long Grain)" 842 1191 9 9 9 9 "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice" "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice"
CustomMedia "A3.ShortGrain/A3 (Short Grain)" 842 1191 9 9 9 9 "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice" "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice"
CustomMedia "Tabloid/Ledger" 792 1224 9 9 9 9 "<</PageSize[792 1224]/ImagingBBox null>>setpagedevice" "<</PageSize[792 1224]/ImagingBBox null>>setpagedevice"
CustomMedia "Tabloid.Fullbleed/Ledger (Borderless)" 792 1224 0 0 0 0 "<</PageSize[792 1224]/ImagingBBox null>>setpagedevice" "<</PageSize[792 1224]/ImagingBBox null>>setpagedevice"
CustomMedia "Tabloid.ShortGrain/Ledger (Short Grain)" 792 1224 9 9 9 9 "<</PageSize[792 1224]/ImagingBBox null>>setpagedevice" "<</PageSize[792 1224]/ImagingBBox null>>setpagedevice"
CustomMedia "B4/B4" 729 1032 9 9 9 9 "<</PageSize[729 1032]/ImagingBBox null>>setpagedevice" "<</PageSize[729 1032]/ImagingBBox null>>setpagedevice"
CustomMedia "B4.ShortGrain/B4 (Short Grain)" 729 1032 9 9 9 9 "<</PageSize[729 1032]/ImagingBBox null>>setpagedevice" "<</PageSize[729 1032]/ImagingBBox null>>setpagedevice"
CustomMedia "VkA3/A3 (Wide Margin)" 842 1191 24 24 24 24 "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice" "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice"
CustomMedia "VkA3_S/A3 (Wide Margin, Short Grain)" 842 1191 24 24 24 24 "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice" "<</PageSize[842 1191]/ImagingBBox null>>setpagedevice"
CustomMedia "VkLedger_S/Ledger (Wide Margin, Short Grain)" 792 1224 24 24 24 24 "<</PageSize[792 1224]/ImagingBBox null>>setpagedevice" "<</PageSize[792 1224]/ImagingBBox null>>setpagedevice"
CustomMedia "VkB4_S/B4 (Wide Margin, Short Grain)" 729 1032 24 24 24 24 "<</PageSize[729 1032]/ImagingBBox null>>setpagedevice" "<</PageSize[729 1032]/ImagingBBox null>>setpagedevice"
