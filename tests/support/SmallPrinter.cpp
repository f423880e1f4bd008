#include "tests/support/SmallPrinter.h"

PPDSource smallPrinter()
{
    return PPDSource()
        .papers({{"A4", 595, 842}, {"A5", 420, 595}})
        .option("Duplex/Two-Sided", {"None/Off", "DuplexNoTumble/Long Edge"})
        .option("Finish", {"Matt", "Shiny"})
        .option("Weight", {"Light", "Heavy"})
        .constraint("Finish Shiny", "Weight Heavy");
}
