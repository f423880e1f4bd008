// The program itself answers --help and --version at once; whatever needs more is in a library of
// its own, so that nobody waits for widgets who sees none. It links no Qt: a library that is loaded
// later is searched after those of the program, and the dialog would start more slowly for it.
#include "dialog/program/ExitStatus.h"
#include "dialog/program/LauncherOutput.h"
#include "dialog/program/LauncherTexts.h"

#include <climits>
#include <cstring>
#include <dlfcn.h>
#include <malloc.h>
#include <string_view>
#include <unistd.h>

namespace {

using EntryPoint = int (*)(int, char **);

// Threads that ask servers and read files get heaps of their own by default: more than a hundred
// kilobytes that are hardly used, since most of the time only one thread works.
void shareOneHeap()
{
    mallopt(M_ARENA_MAX, 1);
}

// Libraries that bring many others, loaded one after the other: each then looks its symbols up
// among its own, and not among all seventy of the dialog's. One that is not there is not missed
// here.
void loadLargeLibraries()
{
    for (const char *name :
         {"libgnutls.so.30", "libcups.so.2", "libQt6Core.so.6", "libQt6Widgets.so.6"})
        dlopen(name, RTLD_LAZY);
}

void *loadDialogLibrary()
{
    constexpr char place[] = "/" VELKARO_PRIVATE_FROM_BIN "/libvelkaro-dialog.so";
    char path[PATH_MAX + sizeof place] = "";
    if (readlink("/proc/self/exe", path, PATH_MAX - 1) < 0)
        return nullptr;
    char *folder = std::strrchr(path, '/');
    std::strcpy(folder ? folder : path, place);
    return dlopen(path, RTLD_LAZY);
}

int runDialogLibrary(int argc, char **argv)
{
    shareOneHeap();
    loadLargeLibraries();
    void *library = loadDialogLibrary();
    void *entry = library ? dlsym(library, "velkaroPrintMain") : nullptr;
    if (!entry) {
        const char *reason = dlerror();
        complain(launcherTexts().incomplete, reason ? reason : launcherTexts().noPlace);
        return exitCode(ExitStatus::PlugIn);
    }
    return reinterpret_cast<EntryPoint>(entry)(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    holdStandardStreams();
    // Further behind, either might be an option's value: the library reads the whole line.
    const std::string_view first = argc > 1 ? argv[1] : "";
    if (first == "--help")
        return exitCode(printText(launcherTexts().help));
    if (first == "--version")
        return exitCode(printText(versionText()));
    return runDialogLibrary(argc, argv);
}
