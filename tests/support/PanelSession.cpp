#include "tests/support/PanelSession.h"

#include "dialog/host/PPDMarks.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/PreferredLanguages.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/built/BuiltFiles.h"

#include <QtWidgets/QAbstractButton>

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

PanelSession::PanelSession(PPDHandle ppd)
    : m_ppd(std::move(ppd)), m_host(std::make_shared<HostCallback>(m_ppd.get())), m_log(*m_host)
{
    UserDefaults::standardUserDefaults().setFolder(QString());
    setPreferredLanguages({u"en"_s});
    setKeyWindow(nullptr);
    setBundle(Bundle::open(builtBundle()));
    setPaper(u"A4"_s, u"A4"_s);
}

PanelSession::~PanelSession()
{
    Bundle::setMainBundle(nullptr);
    setPreferredLanguages({});
    setKeyWindow(nullptr);
}

void PanelSession::setBundle(std::shared_ptr<Bundle> bundle)
{
    m_bundle = std::move(bundle);
    m_bundle->setStrings(Bundle::Strings::Keys);
    Bundle::setMainBundle(m_bundle);
}

void PanelSession::setPaper(const QString &name, const QString &ppdName, QSizeF size)
{
    m_host->format().paper = PMPaper{name, ppdName, size.width(), size.height()};
}

void PanelSession::changePaper(const QString &name, const QString &ppdName, QSizeF size)
{
    setPaper(name, ppdName, size);
    NotificationCenter::defaultCenter().post(u"PMPrintDestinationPaperDidChangeNotification"_s,
                                             m_host.get());
}

void PanelSession::mark(const QString &keyword, const QString &choice)
{
    EXPECT_TRUE(forceChoice(m_ppd.get(), keyword, choice))
        << qPrintable(keyword) << " has no " << qPrintable(choice);
    if (keyword == "Duplex"_L1)
        NotificationCenter::defaultCenter().post(u"PMPrintDuplexChangedNotification"_s,
                                                 m_host.get());
}

QString PanelSession::marked(const QString &keyword)
{
    return markedChoice(m_ppd.get(), keyword);
}

void pickChoice(QWidget *popup, const QString &choice)
{
    auto *button = qobject_cast<PopUpButton *>(popup);
    ASSERT_TRUE(button) << "no pop-up to pick " << qPrintable(choice);
    const int index = button->indexOfRepresentedObject(choice);
    ASSERT_TRUE(button->isItemEnabled(index)) << qPrintable(choice) << " cannot be picked";
    ASSERT_FALSE(button->isHidden()) << qPrintable(button->objectName()) << " is hidden";
    ASSERT_TRUE(button->isEnabled()) << qPrintable(button->objectName()) << " is disabled";
    button->pick(index);
}

void clickBox(QWidget *box, bool checked)
{
    auto *button = qobject_cast<QAbstractButton *>(box);
    ASSERT_TRUE(button) << "no box to click";
    ASSERT_TRUE(button->isEnabled()) << qPrintable(button->objectName()) << " is disabled";
    if (button->isChecked() != checked)
        button->click();
}
