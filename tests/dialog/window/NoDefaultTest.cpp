#include "dialog/window/DialogWindow.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/PPDSource.h"

#include <QtWidgets/QDoubleSpinBox>

using namespace Qt::StringLiterals;

namespace {

/// The dialog on a printer whose PPD leaves some defaults out: nothing is marked there, and nothing
/// may look as if it were.
class NoDefault : public DialogWindowFixture
{
protected:
    void open(const QByteArray &ppd)
    {
        m_line.ppd = m_folder.filePath(u"no-default.ppd"_s);
        writeFile(m_line.ppd, ppd);
        DialogWindowFixture::open();
        part<QTabWidget>("parts")->setCurrentIndex(0);
    }

    QString selected(const char *popup) { return part<PopUpButton>(popup)->selectedObject(); }

    /// The choice of the keyword in the job that is printed; null when the job has none.
    QString printed(const QString &keyword)
    {
        print();
        EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
        const QString head = u"Option: "_s + keyword + u'=';
        for (const QString &line : QString::fromUtf8(written()).split(u'\n'))
            if (line.startsWith(head))
                return line.mid(head.size());
        return {};
    }
};

QByteArray printerWithoutDuplexDefault()
{
    return PPDSource()
        .papers({{"A4", 595, 842}, {"A5", 420, 595}})
        .optionWithoutDefault("Duplex/Two-Sided", {"None/Off", "DuplexNoTumble/Long Edge"})
        .text();
}

QByteArray printerWithoutPaperDefault()
{
    return sampleWithoutDefaults(u"velkaro-px-t900"_s, {"PageSize"});
}

TEST_F(NoDefault, OfAnOptionShowsNothingAndSendsNothing)
{
    open(printerWithoutDuplexDefault());
    EXPECT_EQ(part<PopUpButton>("DuplexPopup")->count(), 2);
    EXPECT_EQ(selected("DuplexPopup"), QString());
    // What the panels have put into the ticket is sent to every printer, and told.
    EXPECT_EQ(summary().mid(0, 9),
              QStringList({u"Page Setup"_s, u"Paper in the Printer"_s, u"A4"_s, u"Scaling"_s,
                           u"Automatic"_s, u"Orientation"_s, u"Portrait"_s, u"Copies"_s, u"1"_s}));
    EXPECT_FALSE(summary().contains(u"Two-Sided Printing"_s));
    EXPECT_EQ(printed(u"Duplex"_s), QString());
}

TEST_F(NoDefault, OfAnOptionSendsEveryPickAlsoOfTheFirstChoice)
{
    open(printerWithoutDuplexDefault());
    pick("DuplexPopup", u"None"_s);
    EXPECT_EQ(selected("DuplexPopup"), u"None"_s);
    EXPECT_EQ(marked(u"Duplex"_s), u"None"_s);
    EXPECT_EQ(printed(u"Duplex"_s), u"None"_s);
}

TEST_F(NoDefault, OfThePaperShowsNoneAndIsNoCustomSize)
{
    open(printerWithoutPaperDefault());
    EXPECT_EQ(selected("paperPopup"), QString());
    EXPECT_FALSE(part<QDoubleSpinBox>("customWidth")->isVisible());
    EXPECT_FALSE(summary().contains(u"Paper in the Printer"_s));
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
    EXPECT_EQ(printed(u"PageSize"_s), QString());
}

TEST_F(NoDefault, OfThePaperLetsAPaperBePicked)
{
    open(printerWithoutPaperDefault());
    pick("paperPopup", u"A4"_s);
    EXPECT_EQ(selected("paperPopup"), u"A4"_s);
    EXPECT_EQ(printed(u"PageSize"_s), u"A4"_s);
}

TEST_F(NoDefault, OfThePaperStaysNoneWhereTheDocumentIsScaled)
{
    open(printerWithoutPaperDefault());
    pick("scalingPopup", u"fit"_s);
    const QStringList lines = summary();
    EXPECT_FALSE(lines.contains(u"Paper in the Printer"_s)) << qPrintable(lines.join(u'|'));
    EXPECT_EQ(lines.value(lines.indexOf(u"Scaling"_s) + 1), u"Fit to the Printable Area"_s);
    EXPECT_EQ(printed(u"PageSize"_s), QString());
}

TEST_F(NoDefault, OfThePaperComesBackWhereAPickIsRefused)
{
    open(printerWithoutPaperDefault() + "*UIConstraints: *PageSize A3 *VKMediaType Glossy\n"
                                        "*UIConstraints: *VKMediaType Glossy *PageSize A3\n");
    pick("mediaTypePopup", u"Glossy"_s);
    pick("paperPopup", u"A3"_s);
    EXPECT_NE(notice(), QString());
    EXPECT_EQ(selected("paperPopup"), QString());
}

} // namespace
