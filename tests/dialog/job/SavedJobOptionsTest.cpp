#include "dialog/job/SavedJobOptions.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    OptionOrigin origin;
    QStringList names;
};

class SavedJobOption : public testing::TestWithParam<Row>
{};

TEST_P(SavedJobOption, IsTakenByItsName)
{
    for (const QString &name : GetParam().names)
        EXPECT_EQ(originOf(name), GetParam().origin) << name.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Ours, SavedJobOption,
                         testing::Values(
                             // the dialog's own
                             Row{OptionOrigin::Ours,
                                 {u"copies"_s, u"page-ranges"_s, u"orientation-requested"_s,
                                  u"fit-to-page"_s, u"print-scaling"_s, u"print-color-mode"_s,
                                  u"print-quality"_s, u"AP_ColorMatchingMode"_s}},
                             // lpoptions
                             Row{OptionOrigin::Ours,
                                 {u"job-hold-until"_s, u"number-up"_s, u"sides"_s, u"booklet"_s,
                                  u"notify-recipient-uri"_s, u"job-priority"_s, u"job-sheets"_s,
                                  u"mirror"_s, u"page-left"_s}},
                             // keywords of PPDs
                             Row{OptionOrigin::Ours,
                                 {u"PageSize"_s, u"Duplex"_s, u"VKMediaType"_s,
                                  u"cupsPrintQuality"_s, u"HP-Tray"_s, u"quality"_s}},
                             // vendor keys
                             Row{OptionOrigin::Ours,
                                 {u"com.velkaro.print.PrintSettings.T2T_Red"_s,
                                  u"com.maker.thing"_s}}));

INSTANTIATE_TEST_SUITE_P(
    Foreign, SavedJobOption,
    testing::Values(
        // what IPP says of a job, in whatever case
        Row{OptionOrigin::Foreign,
            {u"job-name"_s, u"Job-Name"_s, u"job-cancel-after"_s, u"requesting-user-name"_s,
             u"printer-info"_s, u"PRINTER-URI-SUPPORTED"_s, u"media-col"_s, u"auth-info"_s}},
        // the platform's own keys
        Row{OptionOrigin::Foreign,
            {u"com.apple.print.PageToPaperMappingMediaName"_s, u"COM.APPLE.x"_s}},
        // words for servers and filters that this program does not write
        Row{OptionOrigin::Foreign, {u"media"_s, u"device-uri"_s, u"blackplot"_s, u"overrides"_s}}));

INSTANTIATE_TEST_SUITE_P(Never, SavedJobOption,
                         testing::Values(Row{OptionOrigin::Never,
                                             {u"raw"_s, u"RAW"_s, u"printer-uri"_s,
                                              u"Printer-URI"_s, u"job-uri"_s, u"document-format"_s,
                                              u"Document-Format"_s}}));

} // namespace
