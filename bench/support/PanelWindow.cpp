#include "bench/support/PanelWindow.h"

#include "colorsettings/VKInkColorSettingPDE.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/KeyWindow.h"
#include "printsettings/VKInkPrintSetting14PDE.h"
#include "tests/built/BuiltFiles.h"

#include <QtCore/QCoreApplication>

#include <cstdlib>
#include <utility>

PPDHandle openBenchPPD(const QString &path)
{
    auto opened = openPPD(path);
    if (opened)
        return std::move(opened->ppd);
    qCritical("%s", qPrintable(opened.sentence()));
    std::exit(1);
}

PanelWindow::PanelWindow(PPDHandle ppd)
    : m_ppd(std::move(ppd)),
      m_bundle(Bundle::open(builtBundle())),
      m_host(std::make_shared<HostCallback>(m_ppd.get())),
      m_print(std::make_unique<VKInkPrintSetting14PDE>()),
      m_color(std::make_unique<VKInkColorSettingPDE>())
{
    UserDefaults::standardUserDefaults().setFolder(QString());
    Bundle::setMainBundle(m_bundle);
    m_host->format().paper = PMPaper{QStringLiteral("A4"), QStringLiteral("A4"), 595, 842};
    m_window.resize(600, 500);
    setKeyWindow(&m_window);
    m_print->initWithCallback(m_host);
    m_color->initWithCallback(m_host);
    m_print->restoreValuesAndReturnError(nullptr);
    m_color->restoreValuesAndReturnError(nullptr);
}

PanelWindow::~PanelWindow()
{
    setKeyWindow(nullptr);
}

void PanelWindow::showPrint()
{
    m_window.addWidget(m_print->panelView());
    m_color->shouldHide();
    m_print->willShow();
    m_window.setCurrentWidget(m_print->panelView());
    m_window.show();
    settle();
}

void PanelWindow::showColor()
{
    m_window.addWidget(m_color->panelView());
    m_print->shouldHide();
    m_color->willShow();
    m_window.setCurrentWidget(m_color->panelView());
    m_window.show();
    settle();
}

PopUpButton *PanelWindow::popUp(const char *keyword) const
{
    return qobject_cast<PopUpButton *>(m_print->determineUI(QString::fromLatin1(keyword)));
}

void PanelWindow::pick(PopUpButton &popup, int index)
{
    popup.pick(index);
    settle();
}

void PanelWindow::repaint()
{
    m_window.currentWidget()->update();
    settle();
}

void PanelWindow::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}
