#include "dialog/printing/PanelVeto.h"

#include "dialog/host/HostSession.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A session of the spying plug-in, whose first panel vetoes heavy paper without an alert.
class PanelVeto : public testing::Test
{
protected:
    PanelVeto()
    {
        SessionOptions options;
        options.ppdPath = m_folder.filePath(u"the.ppd"_s);
        options.bundlePath = QLatin1String(FIXTURE_FOLDER) + u"/Spy.bundle"_s;
        writeFile(options.ppdPath, smallPrinter().text());
        m_session = *HostSession::open(options);
        m_session->start();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<HostSession> m_session;
};

TEST_F(PanelVeto, IsNoneWhenAllPanelsAgree)
{
    EXPECT_TRUE(askPanels(*m_session));
}

TEST_F(PanelVeto, WithoutAWordGetsASentence)
{
    ASSERT_TRUE(m_session->markElsewhere(u"Weight"_s, u"Heavy"_s));
    const Result<> asked = askPanels(*m_session);
    EXPECT_EQ(asked.faultKind(), FaultKind::Vetoed);
    EXPECT_EQ(asked.sentence(), u"The printer's settings do not allow this job."_s);
}

TEST_F(PanelVeto, ComesFromAPanelThatCouldNotSaveAndStillCannot)
{
    UnsavedPanels unsaved;
    m_session->addObserver(&unsaved);
    const HostPanel &panel = *m_session->panelNamed(u"first"_s);
    EXPECT_TRUE(unsaved.saveAgain(*m_session));
    m_session->writeTicket(u"com.velkaro.test.unsavable"_s, true);
    EXPECT_TRUE(unsaved.saveAgain(*m_session)) << "nobody has tried";
    EXPECT_FALSE(m_session->save(panel));
    const Result<> saved = unsaved.saveAgain(*m_session);
    EXPECT_EQ(saved.faultKind(), FaultKind::Vetoed);
    EXPECT_EQ(saved.sentence(), u"The values of first cannot be kept."_s);
    m_session->writeTicket(u"com.velkaro.test.unsavable"_s, {});
    EXPECT_TRUE(unsaved.saveAgain(*m_session));
    m_session->close();
}

} // namespace
