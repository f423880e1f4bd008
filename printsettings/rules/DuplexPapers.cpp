#include "printsettings/rules/DuplexPapers.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

bool isDuplexPaper(const QString &paperName)
{
    static constexpr std::array papers = {"A3"_L1,
                                          "Tabloid"_L1,
                                          "B4"_L1,
                                          "A3.LongGrain"_L1,
                                          "A3.ShortGrain"_L1,
                                          "Tabloid.ShortGrain"_L1,
                                          "B4.ShortGrain"_L1,
                                          "Letter"_L1,
                                          "Legal"_L1,
                                          "Executive"_L1,
                                          "B5"_L1,
                                          "A4"_L1,
                                          "A5"_L1,
                                          "A6"_L1,
                                          "Postcard"_L1,
                                          "VkA3"_L1,
                                          "VkA3_S"_L1,
                                          "VkLedger_S"_L1,
                                          "VkB4_S"_L1};
    return std::find(papers.begin(), papers.end(), paperName) != papers.end();
}
