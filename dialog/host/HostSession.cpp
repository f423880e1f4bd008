#include "dialog/host/HostSession.h"

#include "dialog/host/HostPaper.h"
#include "dialog/host/PPDMarks.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/PreferredLanguages.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/pde/PDEExtension.h"
#include "platform/pde/PDEInfoKeys.h"
#include "platform/pde/PDEPanelControls.h"
#include "platform/pde/PDEPanelInspection.h"
#include "platform/ppd/PPDText.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

HostSession::HostSession(const SessionOptions &options) : m_options(options) {}

HostSession::~HostSession()
{
    close();
}

Result<std::unique_ptr<HostSession>> HostSession::open(const SessionOptions &options)
{
    Result<OpenedPPD> ppd = openPPD(options.ppdPath, options.ppdTexts);
    if (!ppd)
        return ppd.fault();
    return open(options, *std::move(ppd));
}

std::unique_ptr<HostSession> HostSession::open(const SessionOptions &options, OpenedPPD ppd)
{
    std::unique_ptr<HostSession> session(new HostSession(options));
    session->m_ppd = std::move(ppd.ppd);
    session->m_defaultMarks = ppd.defaults;
    session->m_ppdText = std::move(ppd.text);
    session->m_plugIn = options.bundlePath.isNull() ? loadPlugInFor(session->ppd(), options.info)
                                                    : loadPlugIn(options.bundlePath, options.info);
    session->m_choiceForms = ChoiceForms(session->infoValue(kPDEChoiceFormsKey).toMap());
    session->m_paperAdvice = ::paperAdvice(session->infoValue(kPDEPaperAdviceKey).toList());
    session->prepareCallback();
    return session;
}

void HostSession::prepareCallback()
{
    for (auto mark = m_options.marks.cbegin(); mark != m_options.marks.cend(); ++mark)
        forceChoice(m_ppd.get(), mark.key(), mark.value());
    m_callback = std::make_shared<HostCallback>(m_ppd.get());
    m_callback->setRefused(m_options.refused);
    m_callback->setLacking(m_options.lacking);
    m_callback->setCallObserver([this](const HostCallback::Call &call) {
        tell([&](SessionObserver &observer) { observer.didAnswer(call); });
    });
    m_callback->ticket().setValues(m_options.ticket);
    m_callback->format().paper = m_options.paper ? m_options.paper : markedPaper(m_ppd.get());
}

void HostSession::start()
{
    if (m_options.languages)
        setPreferredLanguages(*m_options.languages);
    if (m_plugIn.bundle)
        m_plugIn.bundle->setStrings(m_options.strings);
    if (m_plugIn.bundle && m_options.replayLanguagesOnly)
        m_plugIn.bundle->setTableLanguages(
            m_plugIn.bundle->infoValue(kPDEReplayLanguagesKey).toStringList());
    if (m_plugIn.bundle && m_options.alertMemory)
        UserDefaults::standardUserDefaults().setPersistentDomain(
            *m_options.alertMemory, m_plugIn.bundle->bundleIdentifier());
    createPanels();
    m_running = true;
    if (!m_options.restore)
        return;
    for (const HostPanel &panel : m_panels)
        restoreValues(panel);
}

bool HostSession::restoreValues(const HostPanel &panel)
{
    QString error;
    const bool restored = panel.panel->restoreValuesAndReturnError(&error);
    if (!restored)
        tellFault(SessionObserver::PanelOperation::Restore, panel, error);
    return restored;
}

void HostSession::tellFault(SessionObserver::PanelOperation operation, const HostPanel &panel,
                            const QString &sentence) const
{
    tell([&](SessionObserver &observer) { observer.didFail(operation, panel, sentence); });
}

// An observer may leave while it is told.
void HostSession::tell(const std::function<void(SessionObserver &)> &what) const
{
    for (SessionObserver *observer : QList(m_observers))
        if (m_observers.contains(observer))
            what(*observer);
}

void HostSession::createPanels()
{
    m_reportedKeywords = QStringList{u"PageSize"_s, u"Duplex"_s};
    if (!m_plugIn.plugIn)
        return;
    m_reportedKeywords += watchedKeywords();
    for (auto &panel : m_plugIn.plugIn->PDEPanelsForType(m_options.dialogType, m_callback)) {
        if (!panel)
            continue;
        auto *controls = panelExtension<PDEPanelControls>(*panel);
        auto *inspection = panelExtension<PDEPanelInspection>(*panel);
        const QString name = controls ? controls->shortName() : panel->panelKind();
        m_reportedKeywords += panel->supportedPPDOptionKeys().value_or(QStringList());
        m_panels.push_back({std::move(panel), controls, inspection, name});
    }
}

void HostSession::close()
{
    if (m_running)
        tell([](SessionObserver &observer) { observer.willClose(); });
    m_running = false;
    m_panels.clear();
    m_views.clear();
}

const HostPanel *HostSession::panelNamed(const QString &name) const
{
    const auto found = std::find_if(m_panels.begin(), m_panels.end(),
                                    [&](const HostPanel &panel) { return panel.name == name; });
    return found == m_panels.end() ? nullptr : &*found;
}

QWidget *HostSession::loadedView(const HostPanel &panel) const
{
    return panel.controls ? panel.controls->loadedView() : m_views.value(panel.panel.get()).get();
}

QMap<QString, QString> HostSession::reportedMarks() const
{
    QMap<QString, QString> marks;
    for (const QString &keyword : m_reportedKeywords) {
        const QString choice = markedChoice(m_ppd.get(), keyword);
        if (!choice.isNull())
            marks.insert(keyword, choice);
    }
    return marks;
}

PPDMark HostSession::spelled(const QString &keyword, const QString &choice) const
{
    ppd_option_t *option = findOption(m_ppd.get(), keyword);
    if (!option)
        return {keyword, choice};
    const auto reported = std::ranges::find_if(
        m_reportedKeywords, [&](const QString &name) { return isSameName(name, keyword); });
    const ppd_choice_t *found = findChoice(option, choice);
    return {reported == m_reportedKeywords.end() ? ppdName(option->keyword) : *reported,
            found ? ppdName(found->choice) : choice};
}

QVariant HostSession::infoValue(QLatin1String key) const
{
    return m_plugIn.bundle ? m_plugIn.bundle->infoValue(key) : QVariant();
}

QStringList HostSession::watchedKeywords() const
{
    return infoValue(kPDEKeysWatchedKey).toStringList();
}

QString HostSession::keywordOfTicketKey(const QString &key) const
{
    return infoValue(kPDETicketKeyKeywordsKey).toMap().value(key).toString();
}

QStringList HostSession::titledKeywords() const
{
    const QVariantMap keywords = m_plugIn.bundle
                                     ? m_plugIn.bundle->infoValue(kPDETicketKeyKeywordsKey).toMap()
                                     : QVariantMap();
    QStringList titled;
    for (const QVariant &keyword : keywords)
        titled += keyword.toString();
    return titled;
}

std::optional<SliderRange> HostSession::sliderRange() const
{
    const QVariantList range = infoValue(kPDESliderRangeKey).toList();
    if (range.size() != 2)
        return std::nullopt;
    return SliderRange{range[0].toDouble(), range[1].toDouble()};
}

QStringList HostSession::foldStateKeys() const
{
    return infoValue(kPDEFoldStateKeysKey).toStringList();
}

std::optional<QStringList> HostSession::twoSidedPapers() const
{
    const QVariant papers = infoValue(kPDETwoSidedPapersKey);
    return papers.isValid() ? std::optional(papers.toStringList()) : std::nullopt;
}

QVariantMap HostSession::alertMemory() const
{
    const QString domain = m_plugIn.bundle ? m_plugIn.bundle->bundleIdentifier() : QString();
    if (domain.isNull())
        return {};
    QVariantMap memory = UserDefaults::standardUserDefaults().persistentDomainForName(domain);
    for (QVariant &isShown : memory)
        isShown = isShown.toBool(); // what another run has written is read back as text
    return memory;
}

const void *HostSession::notificationObject() const
{
    return static_cast<const PDEPluginCallback *>(m_callback.get());
}

void HostSession::post(const QString &name)
{
    NotificationCenter::defaultCenter().post(name, notificationObject());
}
