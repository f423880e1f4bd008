#include "tests/sources/IncludeRules.h"
#include "tests/sources/ProjectFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

TEST(Includes, RunOneWay)
{
    for (const QString &folder : kProductFolders) {
        const QStringList files = sourcesBelow(folder);
        ASSERT_FALSE(files.isEmpty()) << folder.toStdString();
        for (const QString &file : files)
            for (const QString &breach : includeBreaches(projectName(file), contents(file)))
                ADD_FAILURE() << breach.toStdString();
    }
}

TEST(Includes, HaveARuleForEveryFolder)
{
    const QStringList ruled = foldersWithIncludeRules();
    for (const QString &folder : kProductFolders)
        for (const QString &file : sourcesBelow(folder)) {
            const QString path = projectName(file);
            EXPECT_TRUE(std::ranges::any_of(ruled, [&](const QString &one) {
                return path.startsWith(one + u'/');
            })) << path.toStdString();
        }
}

struct Include
{
    const char *behaviour;
    const char *file;
    const char *line;
    const char *alone; ///< what the folder may include; null: all is well
};

const char *const kPrinting = "dialog/printing may include dialog/printing, platform, dialog/work, "
                              "dialog/files, dialog/host, dialog/job, dialog/cups alone";
const char *const kRules = "printsettings/rules may include printsettings/rules and Qt Core alone";

const Include kIncludes[] = {
    // Upwards.
    {"PrintingOfTheProgram", "dialog/printing/A.cpp", "#include \"dialog/program/ExitStatus.h\"",
     kPrinting},
    {"PrintingOfReplay", "dialog/printing/A.h", "#include \"dialog/replay/Recorder.h\"", kPrinting},
    {"PrintingOfTheWindow", "dialog/printing/A.h", "  #  include \"dialog/window/NoticeBar.h\"",
     kPrinting},
    {"HostOfAJob", "dialog/host/controls/A.cpp", "#include \"dialog/job/JobOption.h\"",
     "dialog/host may include dialog/host, platform, dialog/work, dialog/files alone"},
    {"WorkOfFiles", "dialog/work/A.cpp", "#include \"dialog/files/OutputFile.h\"",
     "dialog/work may include dialog/work alone"},
    {"PlatformOfAPanel", "platform/pde/A.h", "#include \"panel/VKPrintQualityPDE.h\"",
     "platform may include platform alone"},
    {"DialogOfAPanel", "dialog/program/A.cpp", "#include \"panel/VKPrintQualityPDE.h\"",
     "dialog/program may include dialog/program, platform, dialog alone"},
    // Across.
    {"OnePanelOfTheOther", "colorsettings/A.cpp", "#include \"printsettings/PrintControls.h\"",
     "colorsettings may include colorsettings, panel, platform alone"},
    {"RulesOfTheirPanel", "printsettings/rules/A.cpp", "#include \"printsettings/PrintControls.h\"",
     kRules},
    {"RulesOfAWidget", "printsettings/rules/A.cpp", "#include <QtWidgets/QWidget>", kRules},
    {"RulesOfCups", "printsettings/rules/A.cpp", "#include <cups/ppd.h>", kRules},
    // Downwards.
    {"WindowOfPrinting", "dialog/window/A.cpp", "#include \"dialog/printing/PrintJob.h\"", nullptr},
    {"ProgramOfReplay", "dialog/program/A.cpp", "#include \"dialog/replay/Recorder.h\"", nullptr},
    {"RulesOfQtCore", "printsettings/rules/A.cpp", "#include <QtCore/QString>", nullptr},
    {"RulesOfTheLibrary", "printsettings/rules/A.cpp", "#include <algorithm>", nullptr},
    {"PanelOfThePlatform", "panel/A.cpp", "#include \"platform/ppd/PPDText.h\"", nullptr},
    {"AHeaderOfTheBuild", "plugin/A.cpp", "#include \"A.moc\"", nullptr},
    {"AComment", "dialog/printing/A.cpp", "// #include \"dialog/program/ExitStatus.h\"", nullptr},
};

class IncludeOf : public testing::TestWithParam<Include>
{};

TEST_P(IncludeOf, IsNamedWhenItRunsTheOtherWay)
{
    const Include &row = GetParam();
    const QString file = QString::fromLatin1(row.file);
    const QString line = QString::fromLatin1(row.line);
    EXPECT_EQ(includeBreaches(file, u"#pragma once\n\n"_s + line + u"\n"_s),
              row.alone ? QStringList(u"%1:3: %2: %3"_s.arg(file, line.trimmed(),
                                                            QString::fromLatin1(row.alone)))
                        : QStringList());
}

INSTANTIATE_TEST_SUITE_P(Table, IncludeOf, testing::ValuesIn(kIncludes), CaseName());

} // namespace
