// Printable discs: the square that holds a disc of 120 mm.
//
// Name and text, width and length in points, then the margins left, bottom, right, top (points;
// borderless papers have none), then what is sent for PageSize and for PageRegion.

CustomMedia "120x120mm/Disc 120 mm" 340 340 0 0 0 0 "<</PageSize[340 340]/ImagingBBox null>>setpagedevice" "<</PageSize[340 340]/ImagingBBox null>>setpagedevice"
CustomMedia "VkDisc12cm/Disc 120 mm (Wide Label)" 340 340 0 0 0 0 "<</PageSize[340 340]/ImagingBBox null>>setpagedevice" "<</PageSize[340 340]/ImagingBBox null>>setpagedevice"
