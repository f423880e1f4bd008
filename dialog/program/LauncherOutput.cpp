#include "dialog/program/LauncherOutput.h"

#include "dialog/program/LauncherTexts.h"

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>

void holdStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // Open for the other direction: whoever uses it is told, as if it were closed.
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

void complain(const char *sentence, const char *reason)
{
    std::string line = std::string("velkaro-print: ") + sentence + '\n';
    line.replace(line.find("%s"), 2, reason);
    std::fputs(line.c_str(), stderr);
}

ExitStatus printText(const char *text)
{
    if (std::fputs(text, stdout) < 0 || std::fflush(stdout) != 0)
        return failWithoutOutput();
    return ExitStatus::Done;
}

ExitStatus failWithoutOutput()
{
    const int reason = errno;
    std::setlocale(LC_ALL, ""); // for the reason's language
    complain(launcherTexts().outputFull, std::strerror(reason));
    return ExitStatus::Output;
}
