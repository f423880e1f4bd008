#include "dialog/host/HostSession.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/PPDSource.h"

using namespace Qt::StringLiterals;

namespace {

/// The option in two groups, each with a default of its own.
QByteArray inTwoGroups(const QByteArray &keyword, const QByteArray &text, const QByteArray &one,
                       const QByteArray &other)
{
    const auto group = [&](const QByteArray &name, const QByteArray &choice) {
        return "*OpenGroup: " + name + "\n*OpenUI *" + keyword + '/' + text +
               ": PickOne\n*Default" + keyword + ": " + choice + "\n*" + keyword + ' ' + one +
               ": \"\"\n*" + keyword + ' ' + other + ": \"\"\n*CloseUI: *" + keyword +
               "\n*CloseGroup: " + name + '\n';
    };
    return group("First", one) + group("Second", other);
}

/// What is sent, and what the summary says of it.
class SentSettings : public DialogWindowFixture
{
protected:
    void open(const QByteArray &added, const QByteArray &sample = sampleText(u"velkaro-px-t900"_s))
    {
        m_line.ppd = m_folder.filePath(u"the.ppd"_s);
        writeFile(m_line.ppd, sample + added);
        DialogWindowFixture::open();
        ASSERT_EQ(m_window->state(), DialogWindow::State::Ready) << notice().toStdString();
        m_defaults = m_window->job().session()->defaultMarks();
    }

    /// The lines below the heading, "title=value", up to those of what no panel tells.
    QStringList linesBelow(const QString &heading)
    {
        const QStringList texts = summary();
        const qsizetype first = texts.indexOf(heading) + 1;
        QStringList lines;
        for (qsizetype index = first; first > 0 && index + 1 < texts.size(); index += 2) {
            if (texts[index] == m_rest)
                break;
            lines += texts[index] + u'=' + texts[index + 1];
        }
        return lines;
    }

    QStringList restLines() { return linesBelow(m_rest); }

    /// The options of the job, "name=value", without the printer's defaults, those of the panels'
    /// ticket, and the scaling, which every job has.
    QStringList sent()
    {
        print();
        EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
        QStringList options;
        for (const QByteArray &line : written().split('\n'))
            if (line.startsWith("Option: ") && !line.contains("com.velkaro."))
                options += QString::fromUtf8(line.mid(8));
        EXPECT_EQ(options.removeAll(u"print-scaling=auto"_s), 1);
        for (const PPDMark &mark : m_defaults)
            options.removeAll(mark.keyword + u'=' + mark.choice);
        return options;
    }

    const QString m_rest = u"Also Sent"_s;
    QList<PPDMark> m_defaults;

    const QStringList m_enhancement{u"Blue=0"_s, u"Brightness=0"_s, u"Contrast=0"_s, u"Green=0"_s,
                                    u"Red=0"_s};
    // What the printer's defaults are in standard terms.
    const QStringList m_standard{u"print-color-mode=color"_s, u"print-quality=4"_s,
                                 u"sides=one-sided"_s};
};

TEST_F(SentSettings, OfAnUntouchedJobAreTheEnhancementsThatNoPanelTells)
{
    open({});
    EXPECT_EQ(restLines(), m_enhancement);
    EXPECT_EQ(sent(), m_standard);
}

TEST_F(SentSettings, ThatAPanelTellsAreNotToldTwice)
{
    m_line.choices = {{u"VKMediaType"_s, u"Glossy"_s}, {u"VKColorEnhancement"_s, u"ON"_s}};
    open({});
    EXPECT_EQ(restLines(), QStringList());
    EXPECT_EQ(summary().count(u"Brightness"_s), 1);
    EXPECT_TRUE(sent().contains(u"VKMediaType=Glossy"_s));
}

TEST_F(SentSettings, AreNotWhatAPPDSaysUnderReservedNames)
{
    open(inTwoGroups("copies", "Paper Type", "1", "999") +
         inTwoGroups("page-ranges", "Paper Type", "1-9", "2-2") +
         inTwoGroups("raw", "Paper Type", "false", "true") +
         inTwoGroups("job-hold-until", "Paper Type", "no-hold", "indefinite") +
         inTwoGroups("Finish", "Finish", "Matt", "Shiny") +
         "*OpenUI *Weight/Weight: PickOne\n*DefaultWeight: HEAVY\n*Weight Light: \"\"\n"
         "*Weight Heavy: \"\"\n*CloseUI: *Weight\n");
    EXPECT_EQ(restLines(), m_enhancement);
    EXPECT_EQ(sent(), m_standard);
}

TEST_F(SentSettings, ThatNoPanelTellsAreToldInThePrintersWords)
{
    m_line.choices = {{u"Finish"_s, u"Matt"_s}};
    open("*OpenUI *Finish/Surface & Touch: PickOne\n*DefaultFinish: Shiny\n*Finish Shiny: \"\"\n"
         "*Finish Matt/Not Shiny: \"\"\n*CloseUI: *Finish\n");
    m_window->job().session()->writeTicket(u"org.example.other"_s, 5);
    EXPECT_EQ(linesBelow(u"Printer Features"_s), QStringList{u"Surface & Touch=Not Shiny"_s});
    EXPECT_EQ(restLines(), m_enhancement + QStringList{u"org.example.other=5"_s});
    EXPECT_EQ(sent(),
              (QStringList{u"Finish=Matt"_s} + m_standard + QStringList{u"org.example.other=5"_s}));
}

TEST_F(SentSettings, ThatSayTheSameAsAChoiceAreToldByIt)
{
    m_line.choices = {{u"ColorModel"_s, u"Gray"_s}};
    open("*OpenUI *ColorModel/Colors: PickOne\n*DefaultColorModel: RGB\n*ColorModel RGB: \"\"\n"
         "*ColorModel Gray/None: \"\"\n*CloseUI: *ColorModel\n");
    EXPECT_EQ(linesBelow(u"Printer Features"_s), QStringList{u"Colors=None"_s});
    EXPECT_EQ(restLines(), m_enhancement);
    EXPECT_EQ(sent(), QStringList{u"ColorModel=Gray"_s} + m_standard);
}

TEST_F(SentSettings, ThatAPanelTellsUnderAnAmbiguousTitleAreToldByTheDialog)
{
    m_line.choices = {{u"VKMediaType"_s, u"Glossy"_s}};
    QByteArray sample = sampleText(u"velkaro-px-t900"_s);
    const qsizetype title = sample.indexOf("*OpenUI *VKResolution/") + 22;
    sample.replace(title, sample.indexOf(':', title) - title, "Media Type");
    open({}, sample);
    EXPECT_TRUE(restLines().contains(u"Media Type=Other Glossy Paper"_s))
        << restLines().join(u'|').toStdString();
}

TEST_F(SentSettings, OfAReservedNameCannotBeAskedFor)
{
    m_line.choices = {{u"raw"_s, u"true"_s}};
    open(inTwoGroups("raw", "Paper Type", "false", "true"));
    EXPECT_EQ(m_window->settingState().sentence(), u"The printer has no setting raw."_s);
    EXPECT_EQ(sent(), m_standard);
}

} // namespace
