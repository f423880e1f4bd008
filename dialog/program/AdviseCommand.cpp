#include "dialog/program/AdviseCommand.h"

#include "dialog/advice/Advising.h"
#include "dialog/files/PathBytes.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/program/Translations.h"
#include "dialog/replay/ReplayScript.h"
#include "dialog/replay/ReplaySession.h"

#include <QtWidgets/QApplication>

#include <array>
#include <cstdio>
#include <optional>
#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] constexpr rlim_t kMostMemory = 2'000'000'000; // bytes of addresses
constexpr rlim_t kMostSeconds = 600;                           // of CPU time

void limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{most, most};
    setrlimit(resource, &both);
}

void limitItself()
{
#ifndef __SANITIZE_ADDRESS__ // which takes terabytes of addresses and little memory
    limit(RLIMIT_AS, kMostMemory);
#endif
    limit(RLIMIT_CPU, kMostSeconds);
    limit(RLIMIT_CORE, 0);
}

/// The lines of standard input.
class InputLines
{
public:
    /// Waits for the next one; none at the end.
    std::optional<QByteArray> next()
    {
        while (!m_read.contains('\n')) {
            std::array<char, 65536> part{};
            const ssize_t got = read(STDIN_FILENO, part.data(), part.size());
            if (got <= 0)
                return std::nullopt;
            m_read.append(part.data(), got);
        }
        const qsizetype end = m_read.indexOf('\n');
        const QByteArray line = m_read.left(end);
        m_read.remove(0, end + 1);
        return line;
    }

    /// Whether more has arrived, or its end has.
    bool haveMore() const
    {
        pollfd input{STDIN_FILENO, POLLIN, 0};
        return !m_read.isEmpty() || poll(&input, 1, 0) > 0;
    }

private:
    QByteArray m_read;
};

ExitStatus adviseOn(InputLines &input, ReplaySession &session)
{
    session.setExplainer([&input](HostSession &host, const QString &keyword,
                                  const QString &choice) -> Result<QJsonObject> {
        const Result<PPDMark> wanted = choiceOfPPD(host, keyword, choice);
        if (!wanted)
            return wanted.fault();
        const auto advice = adviceOn(host, *wanted, [&input] { return input.haveMore(); });
        if (!advice)
            return Fault{FaultKind::Cancelled, u"given up"_s};
        return adviceMessage(*advice);
    });
    while (const std::optional<QByteArray> text = input.next()) {
        const Result<std::optional<ReplayEvent>> event = readReplayLine(*text, {});
        if (!event)
            return ExitStatus::Usage;
        if (!*event)
            continue;
        const Result<QByteArray> line = session.run(**event);
        if (!line)
            return ExitStatus::Usage;
        if (!std::holds_alternative<ReplayWhy>((*event)->action))
            continue;
        std::printf("%s\n", line->constData());
        std::fflush(stdout);
    }
    return ExitStatus::Done;
}

} // namespace

int runAdviseCommand(int &argc, char **argv)
{
    limitItself();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    installTranslations();
    const QString bundle = argc > 2 ? pathOfBytes(argv[2]) : QString();
    InputLines input;
    ReplaySession session(bundle, {}, ReplaySession::Likeness::ToDialog);
    return exitCode(adviseOn(input, session));
}
