// A saved job in the dialog, and documents that come by other ways than the command line.
#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtCore/QMimeData>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

/// A job of the dialog's own in a file, to be opened again.
class SavedJobInTheDialog : public DialogWindowFixture
{
protected:
    void SetUp() override
    {
        m_line.choices = {{u"VKMediaType"_s, u"Glossy"_s}, {u"copies"_s, u"3"_s}};
        open();
        print();
        ASSERT_TRUE(m_window->outcome()) << notice().toStdString();
        m_window.reset();
        m_document = m_line.files[0];
        m_saved = m_line.output;
        m_line.choices.clear();
        m_line.output = QString();
        m_line.files = {m_saved};
    }

    void drop(const QStringList &paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls += QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &drop);
        waitForPrinter();
    }

    QString m_document;
    QString m_saved;
};

TEST_F(SavedJobInTheDialog, IsShownAsItIsAndNothingElse)
{
    open();
    EXPECT_EQ(tabs(), QStringList(u"Summary"_s));
    const QStringList lines = summary();
    EXPECT_THAT(lines.mid(0, 5),
                testing::ElementsAre(u"Saved Job"_s, u"Title"_s, u"Holiday & <b>.ps"_s,
                                     u"Document"_s, u"Holiday & <b>.ps"_s));
    EXPECT_EQ(
        lines.value(lines.indexOf(u"Media Type"_s) + 1),
        ppdText(
            findChoice(findOption(m_window->job().ppd(), u"VKMediaType"_s), u"Glossy"_s)->text));
    EXPECT_EQ(lines.value(lines.indexOf(u"Copies"_s) + 1), u"3"_s);
    EXPECT_FALSE(part<QLineEdit>("pagesField")->isVisible());
    EXPECT_FALSE(part<QAbstractButton>("saveButton")->isVisible());
}

TEST_F(SavedJobInTheDialog, ShowsWhatDiffersFromThePrintersDefaults)
{
    open();
    const QStringList whole = summary();
    EXPECT_TRUE(whole.contains(u"Two-Sided Printing"_s));
    QTest::mouseClick(part<QAbstractButton>("onlyDifferentButton"), Qt::LeftButton);
    const QStringList lines = summary();
    for (const char *title : {"Two-Sided Printing", "Paper in the Printer", "Scaling", "sides"})
        EXPECT_FALSE(lines.contains(QLatin1String(title))) << title;
    for (const char *title : {"Title", "Media Type", "Print Quality", "Copies"})
        EXPECT_TRUE(lines.contains(QLatin1String(title))) << title;
}

TEST_F(SavedJobInTheDialog, WaitsForAQueue)
{
    open();
    EXPECT_EQ(notice(), u"Choose the printer for this saved job."_s);
    EXPECT_FALSE(part<QAbstractButton>("printButton")->isEnabled());
}

TEST_F(SavedJobInTheDialog, TellsOfSettingsThatThePrinterDoesNotHave)
{
    QByteArray text = readFile(m_saved);
    writeFile(m_saved,
              text.replace("VKMediaType=Glossy", "VKMediaType=Bronze\nOption: VKGloss=ON"));
    open();
    EXPECT_EQ(notice(), u"Choose the printer for this saved job. The printer does not have some of "
                        "the settings that the job was saved with: VKMediaType=Bronze, "
                        "VKGloss=ON."_s);
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Warning);
}

TEST_F(SavedJobInTheDialog, GivesWayToADocumentThatIsDropped)
{
    open();
    drop({m_document});
    EXPECT_EQ(tabs(), QStringList({u"Page Setup"_s, u"Print Settings"_s, u"Color Settings"_s,
                                   u"Layout & Job"_s, u"Summary"_s}));
    EXPECT_EQ(part<QLabel>("documentsLabel")->text(), u"Holiday & <b>.ps"_s);
    EXPECT_TRUE(part<QLineEdit>("pagesField")->isVisible());
    EXPECT_TRUE(part<QAbstractButton>("saveButton")->isEnabled());
}

TEST_F(SavedJobInTheDialog, TakesThePlaceOfADocumentWhenItIsDropped)
{
    m_line.files = {m_document};
    open();
    ASSERT_EQ(tabs().size(), 5);
    drop({m_saved});
    EXPECT_EQ(tabs(), QStringList(u"Summary"_s));
}

TEST_F(SavedJobInTheDialog, IsRefusedBesideAnotherDocument)
{
    m_line.files = {m_document};
    open();
    drop({m_document, m_saved});
    EXPECT_EQ(notice(), m_saved + u" is a saved job: it is sent alone, with no other document "
                                  "beside it."_s);
    EXPECT_FALSE(part<QAbstractButton>("saveButton")->isEnabled());
    drop({m_document});
    EXPECT_TRUE(part<QAbstractButton>("saveButton")->isEnabled());
}

TEST_F(SavedJobInTheDialog, IsRefusedWithSettings)
{
    m_line.paper = u"A4"_s;
    const DialogWindow window(m_line);
    EXPECT_EQ(window.documentState().faultKind(), FaultKind::Request);
    EXPECT_EQ(window.documentState().sentence(),
              m_saved + u" is a saved job: it is sent as it was saved, without -o, --paper and "
                        "--output."_s);
}

TEST_F(SavedJobInTheDialog, IsRefusedWhenItIsCut)
{
    QByteArray text = readFile(m_saved);
    text.chop(1);
    writeFile(m_saved, text);
    const DialogWindow window(m_line);
    EXPECT_EQ(window.documentState().faultKind(), FaultKind::Document);
}

TEST_F(SavedJobInTheDialog, DroppedTextIsNoDocument)
{
    open();
    QMimeData data;
    data.setText(u"/etc/hostname"_s);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    EXPECT_FALSE(enter.isAccepted());
    data.setUrls({QUrl(u"https://example.invalid/a.pdf"_s)});
    QDragEnterEvent remote({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &remote);
    EXPECT_FALSE(remote.isAccepted());
}

} // namespace
