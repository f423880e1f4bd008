#include "dialog/host/PPDFile.h"

#include "dialog/host/PPDCompleteness.h"
#include "dialog/host/PPDReading.h"
#include "dialog/host/PPDSentence.h"
#include "dialog/host/StandardKeywords.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <span>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

// libcups tells it of the last PPD that this thread opened.
Fault parserError(const QString &path)
{
    int line = 0;
    const QString reason = QString::fromUtf8(ppdErrorString(ppdLastError(&line)));
    if (line == 0)
        return ppdFault(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a PPD file (%2)."), path, reason);
    return ppdFault(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a usable PPD file (line %2: %3)."),
                    path, QString::number(line), reason);
}

// A cut within the comments at the beginning leaves a PPD that says nothing.
bool saysNothing(const ppd_file_t &ppd)
{
    return ppd.num_groups == 0 && !ppd.modelname && !ppd.nickname && !ppd.manufacturer;
}

// Such a choice would be listed, and nobody could ask for it: libcups takes a brace for the
// beginning of a value of the user's own.
bool hasUsableName(const ppd_choice_t &choice)
{
    return choice.choice[0] != '\0' && choice.choice[0] != '{';
}

void dropUnnamedChoices(ppd_group_t &group)
{
    for (ppd_option_t &option :
         std::span(group.options, static_cast<std::size_t>(group.num_options))) {
        ppd_choice_t *const end = option.choices + option.num_choices;
        ppd_choice_t *const dropped = std::stable_partition(option.choices, end, hasUsableName);
        std::for_each(dropped, end, [](ppd_choice_t &choice) { std::free(choice.code); });
        option.num_choices = static_cast<int>(dropped - option.choices);
    }
}

template <typename Named> void nameWhereEmpty(Named &named, const char *name)
{
    if (named.text[0] == '\0')
        std::strncpy(named.text, name, sizeof named.text - 1);
}

// A translation may be empty. People then read the name, as where a PPD has no text at all.
void nameWhatHasNoText(ppd_group_t &group)
{
    for (ppd_option_t &option :
         std::span(group.options, static_cast<std::size_t>(group.num_options))) {
        nameWhereEmpty(option, option.keyword);
        for (ppd_choice_t &choice :
             std::span(option.choices, static_cast<std::size_t>(option.num_choices)))
            nameWhereEmpty(choice, choice.choice);
    }
}

std::span<ppd_group_t> groupsOf(ppd_file_t &ppd)
{
    return {ppd.groups, static_cast<std::size_t>(ppd.num_groups)};
}

void localize(ppd_file_t &ppd)
{
    ppdLocalize(&ppd);
    std::ranges::for_each(groupsOf(ppd), nameWhatHasNoText);
    nameWhatHasNoWords(ppd);
}

// libcups opens nothing but files; none when there is no memory for it. The file at the PPD's path
// may be another one by now.
FileDescriptor memoryFile(const QByteArray &text)
{
    FileDescriptor file(memfd_create("ppd", MFD_CLOEXEC));
    if (file.isOpen() &&
        write(file.get(), text.constData(), static_cast<std::size_t>(text.size())) == text.size() &&
        lseek(file.get(), 0, SEEK_SET) == 0)
        return file;
    return FileDescriptor();
}

// libcups closes what it is given.
int duplicate(const FileDescriptor &file)
{
    return fcntl(file.get(), F_DUPFD_CLOEXEC, 0);
}

OpenedPPD withDefaults(PPDHandle ppd, std::shared_ptr<const FileDescriptor> text, PPDTexts texts)
{
    std::ranges::for_each(groupsOf(*ppd), dropUnnamedChoices);
    if (texts == PPDTexts::InUserLanguage)
        localize(*ppd);
    ppdMarkDefaults(ppd.get());
    const QList<PPDMark> defaults = marksOf(ppd.get());
    return {std::move(ppd), defaults, std::move(text)};
}

QByteArray contentOf(const FileDescriptor &file)
{
    struct stat status
    {};
    fstat(file.get(), &status);
    QByteArray content(status.st_size, '\0');
    const ssize_t got =
        pread(file.get(), content.data(), static_cast<std::size_t>(content.size()), 0);
    return content.left(std::max<ssize_t>(got, 0));
}

// With a place of its own in the file, whoever else reads it.
int reopened(const FileDescriptor &file)
{
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(file.get());
    return open(path.constData(), O_RDONLY | O_CLOEXEC);
}

} // namespace

bool isSameText(const FileDescriptor &one, const FileDescriptor &other)
{
    return contentOf(one) == contentOf(other);
}

Result<OpenedPPD> openPPD(const QString &path, PPDTexts texts)
{
    const Result<QByteArray> text = readPPD(path);
    if (!text)
        return text.fault();
    auto file = std::make_shared<const FileDescriptor>(memoryFile(*text));
    PPDHandle ppd(ppdOpenFd(duplicate(*file)));
    if (!ppd)
        return parserError(path);
    if (saysNothing(*ppd) || isCutOff(*text))
        return incompletePPD(path);
    return withDefaults(std::move(ppd), std::move(file), texts);
}

Result<OpenedPPD> reopenPPD(const std::shared_ptr<const FileDescriptor> &text, PPDTexts texts)
{
    PPDHandle ppd(ppdOpenFd(reopened(*text)));
    if (!ppd) // there was memory for it before
        return parserError(QString());
    return withDefaults(std::move(ppd), text, texts);
}
