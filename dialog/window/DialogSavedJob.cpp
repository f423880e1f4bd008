#include "dialog/job/JobFileReader.h"
#include "dialog/job/PipeDocuments.h"
#include "dialog/job/SavedJobOptions.h"
#include "dialog/job/SettingTitle.h"
#include "dialog/printing/SavedJob.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/OwnQuestion.h"
#include "dialog/work/Sentences.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/Alert.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kDoNotSend = 1; // of the question whether to send what this program does not write

QStringList foreignSettings(const JobRequest &saved)
{
    QStringList names;
    for (const JobOption &option : saved.options)
        if (originOf(option.name) == OptionOrigin::Foreign)
            names += option.name;
    return names;
}

/// The setting in the words of the printer that the job goes to, as far as that has any.
SummarySection::Line lineOf(ppd_file_t *ppd, const JobOption &setting, bool isDefault)
{
    ppd_option_t *option = findOption(ppd, setting.name);
    const ppd_choice_t *choice = findChoice(option, setting.value);
    return {settingTitle(ppd, setting.name),
            choice ? ppdText(choice->text) : setting.value,
            {},
            {},
            isDefault};
}

} // namespace

/// Looks whether the documents are a job that was saved. It then takes the place of everything that
/// has settings: it is shown and sent as it stands.
void DialogWindow::takeSavedJob()
{
    m_savedJob.reset();
    const Documents &documents = job().documents();
    if (!m_documentState || hasPipes(documents))
        return;
    if (documents.size() != 1 || !isJobFile(documents.front())) {
        m_documentState = refuseSavedJobs(documents);
        return;
    }
    constexpr bool foreignToo = true; // the user is asked before it is sent
    const Result<JobRequest> saved = savedJob(m_wishes, documents.front(), foreignToo);
    if (saved)
        m_savedJob = *saved;
    else
        m_documentState = saved.fault();
}

/// The printer that a saved job was made for, unless the user has named another one; the wished one
/// without a saved job.
PrinterSource DialogWindow::firstPrinter() const
{
    const bool isNamed = !m_wishes.queue.isNull() || !m_wishes.ppd.isNull();
    if (!m_savedJob || m_savedJob->queue.isEmpty() || isNamed)
        return m_controller.wantedPrinter();
    return {m_wishes.server, {m_savedJob->queue, {}}, {}};
}

/// The saved job as it is to go out. None when the user does not want that.
std::optional<JobRequest> DialogWindow::savedJobToSend()
{
    JobRequest request = *m_savedJob;
    request.queue = job().source().queue.queue;
    const QStringList foreign = foreignSettings(request);
    if (foreign.isEmpty())
        return request;
    AlertContent question;
    question.style = AlertStyle::Warning;
    question.text =
        tr("This job sets %1, which Velkaro Print does not write. Print it all the same?")
            .arg(foreign.join(u", "_s));
    question.buttons = {tr("Print"), tr("Cancel")};
    question.defaultButton = kDoNotSend;
    if (askOwn(question) == kDoNotSend || m_isEnding)
        return std::nullopt;
    return request;
}

DialogWindow::Notice DialogWindow::savedJobNotice() const
{
    const QStringList notes = notesOnSending(job().ppd(), m_savedJob->options);
    const QString what = job().source().queue.queue.isEmpty()
                             ? tr("Choose the printer for this saved job.")
                             : tr("This job is printed with the settings that it was saved with.");
    return {notes.isEmpty() ? NoticeBar::Kind::Information : NoticeBar::Kind::Warning,
            joinedSentences(QStringList{what} + notes)};
}

QList<SummarySection> DialogWindow::savedJobSections() const
{
    SummarySection whole{tr("Saved Job"), {{tr("Title"), m_savedJob->title}}};
    for (const Document &document : m_savedJob->documents)
        whole.lines += {tr("Document"), document.name()};
    SummarySection settings{tr("Settings"), {}};
    const QList<JobOption> defaults = defaultOptions(job());
    for (const JobOption &option : m_savedJob->options)
        settings.lines += lineOf(job().ppd(), option, defaults.contains(option));
    return {whole, settings};
}
