#pragma once

#include "dialog/work/CallGuard.h"
#include "dialog/work/Secret.h"

#include <QtCore/QSet>
#include <QtCore/QString>

#include <memory>
#include <optional>

/// Who somebody is to a print server, or to the printer behind a queue.
struct Credentials
{
    QString user = {};
    Secret password = {};
    QString domain = {};     ///< of a printer that has such; null: none was asked for
    bool isToBeKept = false; ///< somebody wants the next run to know it
    bool wasKept = false;    ///< a former run has kept it: nobody was asked

    bool operator==(const Credentials &) const = default;
};

/// What somebody is asked for the password for.
enum class PasswordPurpose {
    Listing,  ///< the printers of the server
    Settings, ///< the queue's, to choose among them
    Printing,
    ChangingJob,  ///< to hold, to cancel
    HeldJob,      ///< its printer wants to know who prints
    PrinterOfJob, ///< likewise, before the job is sent
};

struct PasswordQuestion
{
    PasswordPurpose purpose = PasswordPurpose::Printing;
    QString server = {};     ///< its name for people
    QString queue = {};      ///< null: the server as a whole is asked
    QString user = {};       ///< the one that the server knows so far
    bool isAgain = false;    ///< the last answer was wrong
    bool isReadable = false; ///< what goes to the server can be read on the way
    bool needsDomain = false;
};

/// Knows a password, or somebody who does.
class PasswordAsker
{
public:
    virtual ~PasswordAsker() = default;

    /// Called on the thread that talks to the server, which waits. None when nobody answers, or
    /// when the guard was cancelled.
    virtual std::optional<Credentials> ask(const PasswordQuestion &question, CallGuard &guard) = 0;

    /// The answer was right. On the same thread.
    virtual void keep(const PasswordQuestion &question, const Credentials &right);
};

/// Has the asker answer for the whole program from now on; null: nobody does. A question that is
/// being asked is still the former asker's.
void setPasswordAsker(std::shared_ptr<PasswordAsker> asker);

/// As long as one lives on a thread, servers that the thread talks to may have somebody asked. What
/// nobody waits for, such as the list of printers every few seconds, has none: it uses what is
/// known already.
class PasswordScope
{
public:
    PasswordScope(PasswordPurpose purpose, const QString &queue);
    ~PasswordScope();
    PasswordScope(const PasswordScope &) = delete;
    PasswordScope &operator=(const PasswordScope &) = delete;

    /// The question of this thread's innermost scope; none outside of all.
    static std::optional<PasswordQuestion> question();

private:
    const PasswordPurpose m_purpose;
    const QString m_queue;
    const PasswordScope *const m_outer;
};

/// One time of saying to a server who somebody is: with what the program knows already, with what a
/// former run has kept, and then by asking up to three times. For one thread.
class Login
{
public:
    explicit Login(const QString &server) : m_server(server) {}

    /// Another exchange begins, in which nothing was tried yet.
    void begin();

    /// What to try next, the former one having been refused; none: there is no more. The guard
    /// shows signs of life meanwhile.
    std::optional<Credentials> next(bool isReadable, CallGuard &guard);

    /// The server has let somebody in.
    void succeed();

    /// Whether something was tried in this exchange.
    bool wasTried() const { return m_tried.has_value(); }

    /// The password of what was tried last.
    const Secret &tried() const { return m_tried->password; }

private:
    std::optional<Credentials> ask(PasswordQuestion question, CallGuard &guard);

    const QString m_server;
    std::optional<Credentials> m_tried;
    std::optional<PasswordQuestion> m_asked; ///< for m_tried; none: it was known
    bool m_knownWasTried = false;
    int m_questions = 0;
};

/// Asks the present asker; none when there is none. Silence is expected meanwhile.
std::optional<Credentials> askForPassword(const PasswordQuestion &question, CallGuard &guard);

/// The answer to the question was right.
void keepPassword(const PasswordQuestion &question, const Credentials &right);

/// Under what name an answer to the question is known: the password of a printer behind a queue is
/// not that of the server.
QString placeOf(const PasswordQuestion &question);

/// What the printer behind a queue was told in this run of who prints.
struct ToldPrinter
{
    Credentials who = {};
    QSet<int> jobs = {}; ///< the numbers of those that it was told for
};

/// As it was told last; none: nothing.
std::optional<ToldPrinter> toldPrinter(const PasswordQuestion &question);

/// The printer was told so for the job. Whether it is right the printer alone knows.
void noteToldPrinter(const PasswordQuestion &question, const Credentials &who, int jobId);

/// Forgets all passwords that the program knows.
void forgetPasswords();
