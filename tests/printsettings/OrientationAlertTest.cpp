#include "platform/foundation/Bundle.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "tests/built/BuiltFiles.h"
#include "tests/printsettings/AlertPanel.h"
#include "tests/support/Files.h"

#include <QtCore/QStringEncoder>
#include <QtCore/QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

struct Orientation
{
    QString paperName;
    QSizeF size;
    bool printed;
    QString orientation;
    bool unsupported = false; ///< whether the unsupported-paper alert is raised
};

class PaperOrientation : public Alerts, public testing::WithParamInterface<Orientation>
{};

TEST_P(PaperOrientation, IsWrittenIntoTheTicket)
{
    const Orientation &row = GetParam();
    open();
    usePaper(row.paperName, row.size);
    if (row.unsupported)
        session->alerts().expect();
    EXPECT_EQ(panel->checkPaperAndShowOrientationAlert(), row.printed);
    if (row.unsupported)
        expectUnsupportedPaperAlert();
    QVariant written;
    PMPrintSettingsGetValue(&session->host()->ticket(),
                            u"com.velkaro.print.PrintSettings.Orientation"_s, &written);
    EXPECT_EQ(written.toString(), row.orientation);
}

INSTANTIATE_TEST_SUITE_P(
    All, PaperOrientation,
    testing::Values(Orientation{u"A4"_s, {1, 1}, true, u"Landscape"_s},
                    Orientation{u"Letter.Fullbleed"_s, {1, 1}, true, u"Landscape"_s},
                    Orientation{u"A3"_s, {1, 1}, true, u"Portrait"_s},
                    Orientation{u"EnvDL"_s, {500, 700}, true, u"Portrait"_s},
                    Orientation{u"UnsupportedPaper"_s, {595, 842}, false, u"Portrait"_s, true},
                    Orientation{u"Other"_s, {595, 842}, true, u"Landscape"_s},
                    Orientation{u"Other"_s, {612, 613}, true, u"Landscape"_s},
                    Orientation{u"Other"_s, {360, 613}, true, u"Landscape"_s},
                    Orientation{u"Other"_s, {359.5, 612.5}, true, u"Landscape"_s},
                    Orientation{u"Other"_s, {613, 842}, true, u"Portrait"_s},
                    Orientation{u"Other"_s, {595, 843}, true, u"Portrait"_s},
                    Orientation{u"Other"_s, {359, 842}, true, u"Portrait"_s},
                    Orientation{u"Other"_s, {595, 612}, true, u"Portrait"_s},
                    Orientation{u"A3.ShortGrain"_s, {842, 1191}, true, u"Portrait"_s},
                    Orientation{u"Other"_s, {181, 842}, false, u"Portrait"_s, true},
                    Orientation{u"Custom.1x1"_s, {936, 1369}, false, u"Portrait"_s, true}));

/// The built bundle with the last line of the unsupported-paper message in another wording, which
/// is as long as its own: the string table tells no lengths but the texts'.
std::shared_ptr<Bundle> bundleThatSaysPerCent(const QTemporaryDir &folder)
{
    const auto utf16 = [](const QString &text) -> QByteArray {
        return QStringEncoder(QStringEncoder::Utf16BE)(text);
    };
    const QString table = u"/Resources/Localizable_en.qm"_s;
    QByteArray strings = readFile(builtBundle() + table);
    const QByteArray line = utf16(u"3. Print again."_s);
    EXPECT_EQ(strings.count(line), 1);
    writeFile(folder.path() + table, strings.replace(line, utf16(u"At 100%% it is."_s)));
    QFile::copy(builtBundle() + u"/Info.json"_s, folder.filePath(u"Info.json"_s));
    return Bundle::open(folder.path());
}

TEST_F(Alerts, TheOrientationCheckTakesItsMessageAsAFormatAndNoOtherCheckDoes)
{
    const QTemporaryDir folder;
    session->setBundle(bundleThatSaysPerCent(folder));
    session->bundle().setStrings(Bundle::Strings::Tables);
    open();
    usePaper(u"UnsupportedPaper"_s);
    session->alerts().expect();
    EXPECT_FALSE(panel->checkPaperAndShowOrientationAlert());
    EXPECT_TRUE(takeAlert().informative.endsWith(u"\nAt 100% it is."));
    session->alerts().expect();
    EXPECT_FALSE(panel->shouldPrint());
    EXPECT_TRUE(takeAlert().informative.endsWith(u"\nAt 100%% it is."));
    usePaper(u"Other"_s, {1, 1});
    session->alerts().expect();
    EXPECT_FALSE(panel->checkPaperAndShowOrientationAlert());
    EXPECT_TRUE(takeAlert().informative.endsWith(u"\nAt 100%% it is."));
}

TEST_F(Alerts, TheOrientationCheckConfirmsJapaneseEnvelopes)
{
    show();
    usePaper(u"EnvChou3"_s);
    for (const int button : {0, 1}) {
        session->alerts().expect(AlertAnswers::button(button));
        EXPECT_EQ(panel->checkPaperAndShowOrientationAlert(), button == 0);
        EXPECT_EQ(takeAlert(ShownAlert::Kind::Window).title, u"Envelope Alert Title"_s);
    }
}

TEST_F(Alerts, ALandscapePaperWithoutATicketFails)
{
    open();
    session->host()->setLacking({HostOperation::PrintSettings});
    usePaper(u"A4"_s);
    EXPECT_FALSE(panel->checkPaperAndShowOrientationAlert());
    usePaper(u"A3"_s);
    EXPECT_TRUE(panel->checkPaperAndShowOrientationAlert());
}

TEST_F(Alerts, TheOrientationOfAPageThatCannotBeReadIsVetoedSilently)
{
    open();
    usePaper(u"Other"_s);
    session->host()->format().paper.reset();
    EXPECT_FALSE(panel->checkPaperAndShowOrientationAlert());
}

} // namespace
