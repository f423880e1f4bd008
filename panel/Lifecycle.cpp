#include "panel/VKPrintQualityPDE.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMPrintSettings.h"

namespace {
// An address within the library that the panel classes are part of.
const char kCodeOfThePanels = 0;
} // namespace

VKPrintQualityPDE::VKPrintQualityPDE(std::span<const KeywordControl> controls)
    : m_keywordControls(controls)
{}

VKPrintQualityPDE::~VKPrintQualityPDE()
{
    m_view.reset();
    NotificationCenter::defaultCenter().removeObserver(this);
}

bool VKPrintQualityPDE::initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback)
{
    pdePluginCallbackObject = callback;
    pluginBundle = Bundle::bundleContaining(&kCodeOfThePanels);
    m_outputBin.clear();
    if (pluginBundle && pluginBundle->infoDictionary())
        setThePDEName(pluginBundle->infoValue(QStringLiteral("CFBundleName")).toString());
    paperName = QString();
    popupInited = false;
    m_imageModeFlag = 0;
    if (!pdePluginCallbackObject ||
        !pdePluginCallbackObject->respondsTo(HostOperation::WillChangePPDOptionKeyValue)) {
        pdePluginCallbackObject.reset();
        pluginBundle.reset();
        return false;
    }
    ppd = pdePluginCallbackObject->ppdFile();
    checkModelName();
    restoreValuesAndReturnError(nullptr);
    checkConstraints();
    return true;
}

void VKPrintQualityPDE::setPPDKeys(const std::optional<QStringList> &keywords)
{
    if (!keywords)
        return;
    QStringList present;
    for (const QString &keyword : *keywords) {
        if (findOption(ppd, keyword))
            present << keyword;
    }
    PPDKeys = present;
}

void VKPrintQualityPDE::takeKeywordList(const QString &informationKey)
{
    const QVariant list = pluginBundle ? pluginBundle->infoValue(informationKey) : QVariant();
    if (list.isValid() && !list.isNull())
        setPPDKeys(list.toStringList());
}

bool VKPrintQualityPDE::saveValuesAndReturnError(QString *)
{
    return true;
}

bool VKPrintQualityPDE::restoreValuesAndReturnError(QString *)
{
    checkFax();
    setDefaults();
    readMarkedChoices();
    checkColorSync();
    restoreOptionState();
    checkConstraints();
    if (popupInited)
        updateUI();
    saveAllValues();
    return true;
}

void VKPrintQualityPDE::readMarkedChoices()
{
    for (const QString &keyword : managedKeywords()) {
        const QString marked = markedChoice(ppd, keyword);
        const ppd_option_t *option = findOption(ppd, keyword);
        if (!marked.isNull())
            recordPendingValue(keyword, marked);
        else if (option)
            recordPendingValue(keyword, ppdName(option->defchoice));
    }
}

std::optional<QStringList> VKPrintQualityPDE::supportedPPDOptionKeys() const
{
    return PPDKeys;
}

std::optional<QStringList> VKPrintQualityPDE::availablePPDOptionKeys() const
{
    return supportedPPDOptionKeys();
}

void VKPrintQualityPDE::PPDOptionKeyValueDidChange(const QString &keyword, const QString &choice)
{
    if (!managesKeyword(keyword))
        return;
    recordPendingValue(keyword, choice);
    if (m_panelView)
        updateUIforKey(keyword);
}

void VKPrintQualityPDE::removeNotificationObserver(const Notification &)
{
    NotificationCenter::defaultCenter().removeObserver(this);
}

QString VKPrintQualityPDE::panelKind() const
{
    return QStringLiteral("com.velkaro.print.pde.Cocoa%1").arg(m_thePDEName);
}

void VKPrintQualityPDE::setFlag(ImageModeFlag flag, bool on)
{
    m_imageModeFlag = on ? m_imageModeFlag | flag : m_imageModeFlag & ~flag;
}

QString VKPrintQualityPDE::pendingValue(const QString &keyword) const
{
    const auto value = m_outputBin.constFind(keyword);
    const bool text = value != m_outputBin.constEnd() && value->typeId() == QMetaType::QString;
    return text ? value->toString() : QString();
}

void VKPrintQualityPDE::recordPendingValue(const QString &keyword, const QVariant &value)
{
    m_outputBin.insert(keyword, value);
}

const QStringList &VKPrintQualityPDE::managedKeywords() const
{
    static const QStringList none;
    return PPDKeys ? *PPDKeys : none;
}

bool VKPrintQualityPDE::managesKeyword(const QString &keyword) const
{
    return PPDKeys && PPDKeys->contains(keyword);
}

QString VKPrintQualityPDE::localized(const char *key) const
{
    const QString name = QString::fromLatin1(key);
    return pluginBundle ? pluginBundle->localizedString(name) : name;
}

PMPrintSettings *VKPrintQualityPDE::ticket() const
{
    const bool offered = pdePluginCallbackObject &&
                         pdePluginCallbackObject->respondsTo(HostOperation::PrintSettings);
    return offered ? pdePluginCallbackObject->printSettings() : nullptr;
}
