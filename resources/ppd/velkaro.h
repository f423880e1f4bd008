// What all Velkaro printers have in common.
//
// The printers are driven in PostScript. The code of every choice is a comment that names the choice,
// so that a finished job can be read; only paper size and two-sided printing are commands.

Copyright "Sample description of a Velkaro printer, part of Velkaro Print."
Manufacturer "Velkaro"
Version 1.0
DriverType ps
ColorDevice Yes
Throughput 20
Font Courier Standard "(002.004S)" Standard ROM
Font Helvetica Standard "(001.006S)" Standard ROM
Font Times-Roman Standard "(001.007S)" Standard ROM
Font Symbol Special "(001.007S)" Special ROM
