// The program itself answers --help and --version at once; whatever needs more is in a library of
// its own, so that nobody waits for widgets who sees none. It links no Qt: a library that is loaded
// later is searched after those of the program, and the dialog would start more slowly for it.
#include "dialog/commandline/ExitStatus.h"
#include "dialog/commandline/HelpText.h"

#include <cstdio>
#include <dlfcn.h>
#include <filesystem>
#include <string_view>

namespace {

using EntryPoint = int (*)(int, char **);

int print(const char *text)
{
    std::fputs(text, stdout);
    return exitCode(std::fflush(stdout) == 0 ? ExitStatus::Done : ExitStatus::Output);
}

int runDialogLibrary(int argc, char **argv)
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto path = program.parent_path() / VELKARO_PRIVATE_FROM_BIN / "libvelkaro-dialog.so";
    void *library = dlopen(path.c_str(), RTLD_LAZY);
    void *entry = library ? dlsym(library, "velkaroPrintMain") : nullptr;
    if (!entry) {
        std::fprintf(stderr, "velkaro-print: the installation is incomplete: %s\n", dlerror());
        return exitCode(ExitStatus::PlugIn);
    }
    return reinterpret_cast<EntryPoint>(entry)(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    // Further behind, either might be an option's value: the library reads the whole line.
    const std::string_view first = argc > 1 ? argv[1] : "";
    if (first == "--help")
        return print(helpText());
    if (first == "--version")
        return print(versionText());
    return runDialogLibrary(argc, argv);
}
