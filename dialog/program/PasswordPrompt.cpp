#include "dialog/program/PasswordPrompt.h"

#include "dialog/cups/PasswordWords.h"
#include "dialog/files/DescriptorPath.h"
#include "dialog/files/FileDescriptor.h"
#include "dialog/work/SystemReason.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr int kPromptLook = 50;              // ms between two looks at the guard
constexpr qsizetype kLongestPassword = 1024; // bytes

/// The next line without its end; none at the end of the file before one, or when the guard was
/// cancelled. A byte at a time: what follows the line is somebody else's.
std::optional<QByteArray> readLine(int descriptor, CallGuard &guard)
{
    QByteArray line;
    line.reserve(kLongestPassword + 1); // growing would leave copies behind
    while (!guard.isCancelled() && line.size() <= kLongestPassword) {
        guard.stampSignOfLife(); // people take their time
        pollfd watched{descriptor, POLLIN, 0};
        if (poll(&watched, 1, kPromptLook) == 0)
            continue;
        char byte = 0;
        const ssize_t count = read(descriptor, &byte, 1);
        if (count == 1 && byte != '\n')
            line += byte;
        else if (count == 1 || !line.isEmpty())
            return line;
        else
            break;
    }
    return std::nullopt;
}

Fault unreadable(int descriptor, int error)
{
    return {FaultKind::Request,
            QCoreApplication::translate("PasswordPrompt", "No password can be read from the open "
                                                          "file %1 (--password-fd): %2.")
                .arg(QString::number(descriptor), systemReason(error))};
}

bool standsFor(const QString &document, int descriptor)
{
    return (document == QLatin1String("-") && descriptor == STDIN_FILENO) ||
           descriptorOf(document) == descriptor;
}

class PasswordReader : public PasswordAsker
{
public:
    explicit PasswordReader(int descriptor) : m_descriptor(descriptor) {}

    std::optional<Credentials> ask(const PasswordQuestion &question, CallGuard &guard) override
    {
        if (question.isAgain)
            return std::nullopt;
        const std::lock_guard lock(m_mutex);
        if (m_password.isNull())
            if (std::optional<QByteArray> line = readLine(m_descriptor, guard))
                m_password = Secret::takeFrom(*line);
        if (m_password.isNull())
            return std::nullopt;
        return Credentials{.user = question.user, .password = m_password};
    }

private:
    const int m_descriptor;
    std::mutex m_mutex; // guards what follows
    Secret m_password;  // null: not read yet
};

/// As long as it lives, the terminal does not show what is typed.
class NoEcho
{
public:
    explicit NoEcho(int terminal) : m_terminal(terminal)
    {
        tcgetattr(terminal, &m_before);
        termios quiet = m_before;
        quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        quiet.c_lflag |= ECHONL;
        tcsetattr(terminal, TCSAFLUSH, &quiet);
    }
    ~NoEcho() { tcsetattr(m_terminal, TCSAFLUSH, &m_before); }
    NoEcho(const NoEcho &) = delete;
    NoEcho &operator=(const NoEcho &) = delete;

private:
    const int m_terminal;
    termios m_before{};
};

class PasswordPrompt : public PasswordAsker
{
public:
    std::optional<Credentials> ask(const PasswordQuestion &question, CallGuard &guard) override
    {
        const FileDescriptor terminal(::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC));
        if (!terminal.isOpen())
            return std::nullopt;
        for (const QString &sentence : sentencesOf(question))
            show(terminal.get(), displayText(sentence) + u'\n');
        Credentials answer{.user = question.user};
        const auto user = askLine(terminal.get(), guard, userPrompt(question.user));
        if (!user)
            return std::nullopt;
        if (!user->isEmpty())
            answer.user = QString::fromLocal8Bit(*user);
        if (question.needsDomain)
            answer.domain = QString::fromLocal8Bit(
                askLine(terminal.get(), guard,
                        QCoreApplication::translate("PasswordPrompt", "Domain: "))
                    .value_or(QByteArray()));
        const NoEcho quiet(terminal.get());
        auto password = askLine(terminal.get(), guard,
                                QCoreApplication::translate("PasswordPrompt", "Password: "));
        if (!password)
            return std::nullopt;
        answer.password = Secret::takeFrom(*password);
        return answer;
    }

private:
    static void show(int terminal, const QString &text)
    {
        const QByteArray bytes = text.toLocal8Bit();
        // Who cannot read it can answer all the same.
        [[maybe_unused]] const ssize_t written =
            write(terminal, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }

    static QString userPrompt(const QString &user)
    {
        return user.isEmpty() ? QCoreApplication::translate("PasswordPrompt", "User name: ")
                              : QCoreApplication::translate("PasswordPrompt", "User name [%1]: ")
                                    .arg(displayText(user));
    }

    static std::optional<QByteArray> askLine(int terminal, CallGuard &guard, const QString &prompt)
    {
        show(terminal, prompt);
        return readLine(terminal, guard);
    }
};

} // namespace

std::shared_ptr<PasswordAsker> newPasswordReader(int descriptor)
{
    return std::make_shared<PasswordReader>(descriptor);
}

Result<> checkPasswordDescriptor(int descriptor, const QStringList &documents)
{
    struct stat status = {};
    const int flags = fcntl(descriptor, F_GETFL);
    if (flags < 0 || fstat(descriptor, &status) != 0)
        return unreadable(descriptor, errno);
    if ((flags & O_ACCMODE) == O_WRONLY)
        return unreadable(descriptor, EBADF);
    if (S_ISDIR(status.st_mode))
        return unreadable(descriptor, EISDIR);
    if (std::ranges::none_of(documents,
                             [&](const QString &one) { return standsFor(one, descriptor); }))
        return {};
    return Fault{FaultKind::Request,
                 QCoreApplication::translate("PasswordPrompt", "The open file %1 cannot be a "
                                                               "document and hold the password "
                                                               "(--password-fd).")
                     .arg(descriptor)};
}

std::shared_ptr<PasswordAsker> newPasswordPrompt()
{
    return std::make_shared<PasswordPrompt>();
}
