#include "tests/printsettings/PrintPanel.h"

using namespace Qt::StringLiterals;

namespace {

// One print attempt: which alerts come, in which order, and what the answers decide.
struct Attempt
{
    QString name;
    QString paper;
    QString ppdName; ///< null: the user's own size
    QSizeF size;
    QString medium; ///< marked
    bool fax;
    QList<int> answers; ///< the button of each alert that must come
    QStringList alerts; ///< their texts, or the window's title
    bool printed;
};

void PrintTo(const Attempt &row, std::ostream *out)
{
    *out << qPrintable(row.name);
}

class PrintVeto : public PrintPanelTest, public testing::WithParamInterface<Attempt>
{
protected:
    void tryPrinting()
    {
        const Attempt &row = GetParam();
        session->changePaper(row.paper, row.ppdName, row.size);
        session->mark(u"VKMediaType"_s, row.medium);
        if (row.fax)
            session->mark(u"VKOutput"_s, u"FAX"_s);
        for (const int button : row.answers)
            session->alerts().expect(AlertAnswers::button(button));
        EXPECT_EQ(panel->shouldPrint(), row.printed);
        QStringList texts;
        for (const ShownAlert &alert : session->alerts().take())
            texts << (alert.content.title.isNull() ? alert.content.text : alert.content.title);
        EXPECT_EQ(texts, row.alerts);
    }
};

TEST_P(PrintVeto, OfAPanelThatWasShown)
{
    show();
    tryPrinting();
}

TEST_P(PrintVeto, OfAPanelThatWasNeverShown)
{
    open();
    tryPrinting();
    EXPECT_FALSE(panel->popupInited);
    // A fax job needs no alert's window.
    EXPECT_EQ(panel->loadedView() != nullptr, !GetParam().fax);
}

const QSizeF kA4Size(595, 842);
const QString kDisc = u"PrintableDisc"_s;

INSTANTIATE_TEST_SUITE_P(
    All, PrintVeto,
    testing::Values(
        Attempt{u"an ordinary job"_s, u"A3"_s, u"A3"_s, kA4Size, u"Plain"_s, false, {}, {}, true},
        Attempt{u"a custom size in range"_s,
                u"Custom.300x400"_s,
                {},
                {300, 400},
                u"Plain"_s,
                false,
                {},
                {},
                true},
        Attempt{u"a custom size out of range"_s,
                u"Custom.9x9"_s,
                {},
                {9, 9},
                u"Plain"_s,
                false,
                {0},
                {u"Unsupported Paper Title"_s},
                false},
        Attempt{u"a disc, confirmed"_s,
                u"120x120mm"_s,
                u"120x120mm"_s,
                {340, 340},
                kDisc,
                false,
                {0},
                {u"DiscPrint Alert"_s},
                true},
        Attempt{u"a disc, cancelled"_s,
                u"120x120mm"_s,
                u"120x120mm"_s,
                {340, 340},
                kDisc,
                false,
                {1},
                {u"DiscPrint Alert"_s},
                false},
        Attempt{u"an envelope, confirmed"_s,
                u"EnvChou3"_s,
                u"EnvChou3"_s,
                {340, 666},
                u"Plain"_s,
                false,
                {0},
                {u"Envelope Alert Title"_s},
                true},
        Attempt{u"an envelope, cancelled"_s,
                u"EnvChou3"_s,
                u"EnvChou3"_s,
                {340, 666},
                u"Plain"_s,
                false,
                {1},
                {u"Envelope Alert Title"_s},
                false},
        Attempt{u"an unsupported Letter"_s,
                u"Letter"_s,
                {},
                {9, 9},
                u"Plain"_s,
                false,
                {0},
                {u"Unsupported Paper Title"_s},
                false},
        // Papers that more than one check stops at: the first veto is the last alert.
        Attempt{u"a custom disc out of range"_s,
                u"Custom12cm"_s,
                {},
                {9, 9},
                kDisc,
                false,
                {0},
                {u"Unsupported Paper Title"_s},
                false},
        Attempt{u"a disc in an envelope, cancelled"_s,
                u"EnvChou3.12cm"_s,
                {},
                {340, 340},
                kDisc,
                false,
                {1},
                {u"DiscPrint Alert"_s},
                false},
        Attempt{u"a disc in an envelope, confirmed and then cancelled"_s,
                u"EnvChou3.12cm"_s,
                {},
                {340, 340},
                kDisc,
                false,
                {0, 1},
                {u"DiscPrint Alert"_s, u"Envelope Alert Title"_s},
                false},
        // A fax uses no paper of this printer.
        Attempt{u"a fax on an envelope"_s,
                u"EnvChou3"_s,
                u"EnvChou3"_s,
                {340, 666},
                u"Plain"_s,
                true,
                {},
                {},
                true},
        Attempt{u"a fax on a disc"_s,
                u"120x120mm"_s,
                u"120x120mm"_s,
                {340, 340},
                kDisc,
                true,
                {},
                {},
                true},
        Attempt{u"a fax on an unsupported Letter"_s,
                u"Letter"_s,
                {},
                {9, 9},
                u"Plain"_s,
                true,
                {},
                {},
                true},
        Attempt{u"a fax on a custom size out of range"_s,
                u"Custom.9x9"_s,
                {},
                {9, 9},
                u"Plain"_s,
                true,
                {},
                {},
                true}));

class PrintFlow : public PrintPanelTest
{};

TEST_F(PrintFlow, SavesTheValuesBeforeTheChecks)
{
    open();
    ppdMarkOption(session->ppd(), "Duplex", "DuplexNoTumble");
    session->changePaper(u"Custom.9x9"_s, {}, {9, 9});
    log();
    session->alerts().expect();
    EXPECT_FALSE(panel->shouldPrint());
    session->alerts().take();
    EXPECT_EQ(session->log().takeOffers(), QStringList({u"VKMediaType=PlainDuplex"_s}));
}

TEST_F(PrintFlow, OfAFaxSavesNothing)
{
    open();
    session->mark(u"VKOutput"_s, u"FAX"_s);
    ppdMarkOption(session->ppd(), "Duplex", "DuplexNoTumble");
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(log(), QStringList());
    EXPECT_EQ(session->marked(u"VKMediaType"_s), u"Plain"_s);
}

} // namespace
