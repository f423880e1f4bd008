// Run by the build: writes velkaro-print(1) in every language below the folder that it is given, as
// an installed system has them (man1/velkaro-print.1, de/man1/velkaro-print.1, ...).
#include "dialog/program/ManPage.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("one folder, please\n", stderr);
        return 2;
    }
    for (const ManualWords &words : manualWords()) {
        const auto folder = std::filesystem::path(argv[1]) / words.language / "man1";
        std::filesystem::create_directories(folder);
        std::ofstream page(folder / "velkaro-print.1");
        page << manualPage(words) << std::flush;
        if (!page) {
            std::perror((folder / "velkaro-print.1").c_str());
            return 1;
        }
    }
    return 0;
}
