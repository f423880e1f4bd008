#include "panel/VKPrintQualityPDE.h"

#include "platform/foundation/Bundle.h"
#include "platform/toolkit/HelpManager.h"

#include <QtCore/QDir>

using namespace Qt::StringLiterals;

QString VKPrintQualityPDE::helpBookPath() const
{
    if (!pluginBundle)
        return {};
    const QString path = pluginBundle->bundlePath() + u"/../../Help/"_s + m_thePDEName + u".help"_s;
    return QDir::cleanPath(path);
}

bool VKPrintQualityPDE::registerHelp()
{
    return HelpManager::sharedHelpManager().registerBook(helpBookPath());
}

QString VKPrintQualityPDE::helpBook() const
{
    return pluginBundle ? pluginBundle->infoValue(u"CFBundleHelpBookName"_s).toString() : QString();
}

QString VKPrintQualityPDE::helpAnchor() const
{
    return u"VkHelpAnchor"_s;
}

bool VKPrintQualityPDE::shouldShowHelp()
{
    if (!hasFlag(HelpRegistered) || helpAnchor().isNull() || helpBook().isNull())
        return true;
    HelpManager::sharedHelpManager().openHelpAnchor(helpAnchor(), helpBook());
    return false;
}

void VKPrintQualityPDE::showHelpFile(QWidget *)
{
    if (hasFlag(HelpRegistered))
        shouldShowHelp();
}
