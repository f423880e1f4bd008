#include "dialog/program/ManPage.h"

#include "dialog/program/LauncherTexts.h"

#include <array>
#include <sstream>
#include <string_view>
#include <vector>

namespace {

const std::array kWords{
    ManualWords{"", kEnglishTexts, "NAME", "print documents with the printer's settings",
                "SYNOPSIS", "DESCRIPTION", "OPTIONS", "SEE ALSO", true},
    ManualWords{"de", kGermanTexts, "BEZEICHNUNG",
                "Dokumente mit den Einstellungen des Druckers drucken", "ÜBERSICHT", "BESCHREIBUNG",
                "OPTIONEN", "SIEHE AUCH", true},
    ManualWords{"fr", kFrenchTexts, "NOM",
                "imprimer des documents avec les réglages de l’imprimante", "SYNOPSIS",
                "DESCRIPTION", "OPTIONS", "VOIR AUSSI", true},
    ManualWords{"ja", kJapaneseTexts, "名前", "プリンターの設定を選んで文書を印刷する", "書式",
                "説明", "オプション", "関連項目", false},
};

/// An entry of the list: what stands on the left, and what it means.
struct Entry
{
    std::string head;
    std::string text;
};

struct Section
{
    std::string title;
    std::vector<Entry> entries;
};

/// --help taken apart.
struct Help
{
    std::string usage; ///< from the program's name on
    std::string description;
    std::vector<Section> sections;
};

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

void append(std::string &text, std::string_view line, bool spaces)
{
    const auto isAscii = [](char letter) { return static_cast<unsigned char>(letter) < 0x80; };
    if (!text.empty() && (spaces || isAscii(text.back()) || isAscii(line.front())))
        text += ' ';
    text += line;
}

/// A head begins in the third column, or in the seventh where the option has no short name.
bool isHead(std::string_view line)
{
    const auto column = line.find_first_not_of(' ');
    return column == 2 || (column == 6 && line.substr(column).starts_with("--"));
}

Entry newEntry(std::string_view line)
{
    const std::string_view whole = trimmed(line);
    const auto gap = whole.find("  ");
    if (gap == std::string_view::npos)
        return {std::string(whole), {}};
    return {std::string(whole.substr(0, gap)), std::string(trimmed(whole.substr(gap)))};
}

Help takenApart(const ManualWords &words)
{
    Help help;
    std::istringstream text(words.texts.help);
    std::string line;
    std::getline(text, line);
    help.usage = line.substr(line.find("velkaro-print"));
    while (std::getline(text, line)) {
        if (line.empty())
            continue;
        if (isHead(line))
            help.sections.back().entries.push_back(newEntry(line));
        else if (line.front() == ' ')
            append(help.sections.back().entries.back().text, trimmed(line), words.spaces);
        else if (text.peek() == ' ')
            help.sections.push_back({line, {}});
        else
            append(help.description, line, words.spaces);
    }
    return help;
}

std::string escaped(std::string_view text)
{
    std::string roff = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
    for (const char letter : text)
        roff += letter == '-' ? "\\-" : letter == '\\' ? "\\e" : std::string(1, letter);
    return roff;
}

std::string section(const char *title)
{
    return std::string(".SH ") + title + '\n';
}

std::string entries(const Section &section)
{
    std::string roff;
    for (const Entry &entry : section.entries)
        roff += ".TP\n.B " + escaped(entry.head) + '\n' + escaped(entry.text) + '\n';
    return roff;
}

} // namespace

std::span<const ManualWords> manualWords()
{
    return kWords;
}

std::string manualPage(const ManualWords &words)
{
    const Help help = takenApart(words);
    std::string roff = ".TH VELKARO\\-PRINT 1 \"\" \"Velkaro Print " VELKARO_VERSION "\"\n";
    roff += section(words.name) + "velkaro\\-print \\- " + escaped(words.summary) + '\n';
    roff += section(words.synopsis) + ".B " + escaped(help.usage) + '\n';
    roff += section(words.description) + escaped(help.description) + '\n';
    roff += section(words.options);
    for (std::size_t index = 0; index + 1 < help.sections.size(); ++index)
        roff += ".SS " + help.sections[index].title + '\n' + entries(help.sections[index]);
    roff += section(help.sections.back().title.c_str()) + entries(help.sections.back());
    roff += section(words.seeAlso) + ".BR lp (1),\n.BR lpoptions (1),\n.BR cups (1)\n";
    return roff;
}
