#include "dialog/cups/Passwords.h"

#include <QtCore/QHash>

#include <cups/cups.h>

#include <mutex>
#include <utility>

namespace {

constexpr int kMostQuestions = 3; // about one thing

/// What the program knows as long as it runs.
struct Known
{
    std::mutex mutex; // guards what follows
    std::shared_ptr<PasswordAsker> asker;
    QHash<QString, Credentials> ofServer;
    QHash<QString, ToldPrinter> ofPrinter; ///< by placeOf()
};

// Never destroyed: a thread that waits for a server may outlive main().
Known &known()
{
    static auto *all = new Known;
    return *all;
}

/// One question at a time: two requests that wait for a password may both have the first answer.
std::mutex &questionMutex()
{
    static std::mutex mutex;
    return mutex;
}

template <typename Value>
std::optional<Value> found(const QHash<QString, Value> &all, const QString &place)
{
    const std::lock_guard lock(known().mutex);
    const auto found = all.constFind(place);
    return found == all.cend() ? std::nullopt : std::optional(*found);
}

std::shared_ptr<PasswordAsker> presentAsker()
{
    const std::lock_guard lock(known().mutex);
    return known().asker;
}

thread_local const PasswordScope *t_scope = nullptr;

} // namespace

void PasswordAsker::keep(const PasswordQuestion &, const Credentials &) {}

void setPasswordAsker(std::shared_ptr<PasswordAsker> asker)
{
    const std::lock_guard lock(known().mutex);
    known().asker = std::move(asker);
}

void forgetPasswords()
{
    const std::lock_guard lock(known().mutex);
    known().ofServer.clear();
    known().ofPrinter.clear();
}

PasswordScope::PasswordScope(PasswordPurpose purpose, const QString &queue)
    : m_purpose(purpose), m_queue(queue), m_outer(std::exchange(t_scope, this))
{}

PasswordScope::~PasswordScope()
{
    t_scope = m_outer;
}

std::optional<PasswordQuestion> PasswordScope::question()
{
    if (!t_scope)
        return std::nullopt;
    return PasswordQuestion{.purpose = t_scope->m_purpose,
                            .queue = t_scope->m_queue,
                            .user = QString::fromLocal8Bit(cupsUser())};
}

std::optional<Credentials> askForPassword(const PasswordQuestion &question, CallGuard &guard)
{
    const std::shared_ptr<PasswordAsker> asker = presentAsker();
    const auto answer = asker ? asker->ask(question, guard) : std::nullopt;
    guard.stampSignOfLife();
    return answer;
}

void keepPassword(const PasswordQuestion &question, const Credentials &right)
{
    if (const std::shared_ptr<PasswordAsker> asker = presentAsker())
        asker->keep(question, right);
}

QString placeOf(const PasswordQuestion &question)
{
    const bool isOfPrinter = question.purpose == PasswordPurpose::HeldJob ||
                             question.purpose == PasswordPurpose::PrinterOfJob;
    return isOfPrinter ? question.server + u'/' + question.queue : question.server;
}

std::optional<ToldPrinter> toldPrinter(const PasswordQuestion &question)
{
    return found(known().ofPrinter, placeOf(question));
}

void noteToldPrinter(const PasswordQuestion &question, const Credentials &who, int jobId)
{
    const std::lock_guard lock(known().mutex);
    ToldPrinter &told = known().ofPrinter[placeOf(question)];
    if (told.who != who)
        told = {who, {}};
    told.jobs += jobId;
}

void Login::begin()
{
    m_tried.reset();
    m_asked.reset();
    m_knownWasTried = false;
    m_questions = 0;
}

std::optional<Credentials> Login::next(bool isReadable, CallGuard &guard)
{
    if (!std::exchange(m_knownWasTried, true))
        if (const auto before = found(known().ofServer, m_server))
            return m_tried = before;
    std::optional<PasswordQuestion> question = PasswordScope::question();
    if (!question)
        return std::nullopt;
    question->isReadable = isReadable;
    return ask(*question, guard);
}

std::optional<Credentials> Login::ask(PasswordQuestion question, CallGuard &guard)
{
    const std::lock_guard one(questionMutex());
    const auto before =
        found(known().ofServer, m_server); // somebody else may have asked for it meanwhile
    if (before && before != m_tried)
        return m_tried = before;
    question.server = m_server;
    question.isAgain = m_tried.has_value();
    if (m_tried)
        question.user = m_tried->user;
    if (m_questions == kMostQuestions)
        return std::nullopt;
    std::optional<Credentials> answer = askForPassword(question, guard);
    if (!answer)
        return std::nullopt;
    m_questions += answer->wasKept ? 0 : 1;
    m_asked = question;
    return m_tried = answer;
}

void Login::succeed()
{
    if (!m_tried)
        return;
    {
        const std::lock_guard lock(known().mutex);
        known().ofServer.insert(m_server, *m_tried);
    }
    if (m_asked)
        keepPassword(*m_asked, *m_tried);
    m_asked.reset();
}
