#include "dialog/replay/ReplayScript.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct FaultyLine
{
    const char *line;
    const char *error;
};

class FaultyScriptLine : public testing::TestWithParam<FaultyLine>
{};

Result<std::optional<ReplayEvent>> readScriptLine(const char *line)
{
    return readReplayLine(line, QDir(u"/scripts"_s));
}

template <typename Action> Action readAction(const char *line)
{
    const auto read = readScriptLine(line);
    EXPECT_TRUE(read.sentence().isNull()) << read.sentence().toStdString();
    return std::get<Action>(read->value().action);
}

} // namespace

TEST_P(FaultyScriptLine, IsRefusedWithOneSentence)
{
    const auto line = readScriptLine(GetParam().line);
    EXPECT_EQ(line.faultKind(), FaultKind::Request);
    EXPECT_EQ(line.sentence().toStdString(), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, FaultyScriptLine,
    testing::Values(
        // No event at all.
        FaultyLine{"[]", "not a JSON object"}, //
        FaultyLine{"5", "not a JSON object (illegal value)"},
        FaultyLine{"{", "not a JSON object (unterminated object)"},
        FaultyLine{"{} {}", "not a JSON object (garbage at the end of the document)"},
        FaultyLine{R"({"do": "state"} # tail)",
                   "not a JSON object (garbage at the end of the document)"},
        FaultyLine{"{\"do\": \"st\xff\"}", "not a JSON object (invalid UTF8 string)"},
        FaultyLine{"{}", "\"do\" is missing"},
        FaultyLine{R"({"do": 1})", "\"do\" must be a string"},
        FaultyLine{R"({"do": "dance"})", "there is no event \"dance\""},
        FaultyLine{R"({"do": "Open", "ppd": "x"})", "there is no event \"Open\""},
        // open.
        FaultyLine{R"({"do": "open"})", "open: \"ppd\" is missing"},
        FaultyLine{R"({"do": "open", "ppd": null})", "open: \"ppd\" must be a string"},
        FaultyLine{R"({"do": "open", "ppd": "x", "type": 1})", "open: \"type\" must be a string"},
        FaultyLine{R"({"do": "open", "ppd": "x", "marks": {"A": 1}})",
                   "open: \"marks\" must be an object whose members are strings"},
        FaultyLine{R"({"do": "open", "ppd": "x", "ticket": {"A": null}})",
                   "open: \"ticket\" must be an object whose members are strings, numbers or "
                   "booleans"},
        FaultyLine{
            R"({"do": "open", "ppd": "x", "paper": {"name": "A4", "width": 1, "height": 1}})",
            "open: \"paper\" must be an object with name (a string), ppdName (a string or "
            "null), width and height (numbers)"},
        FaultyLine{R"({"do": "open", "ppd": "x", "languages": "en"})",
                   "open: \"languages\" must be a list of strings"},
        FaultyLine{R"({"do": "open", "ppd": "x", "strings": "other"})",
                   "open: \"strings\" must be \"bundle\" or \"keys\""},
        FaultyLine{R"({"do": "open", "ppd": "x", "alerts": {"A": 0}})",
                   "open: \"alerts\" must be an object whose members are true or false"},
        FaultyLine{R"({"do": "open", "ppd": "x", "refuse": [1]})",
                   "open: \"refuse\" must be a list of strings"},
        FaultyLine{R"({"do": "open", "ppd": "x", "lacks": ["ppdFile"]})",
                   "open: \"lacks\" must be a list of optional callback operations"},
        FaultyLine{R"({"do": "open", "ppd": "x", "info": []})", "open: \"info\" must be an object"},
        FaultyLine{R"({"do": "open", "ppd": "x", "windowHeight": "800"})",
                   "open: \"windowHeight\" must be a number or null"},
        FaultyLine{R"({"do": "open", "ppd": "x", "restore": 1})",
                   "open: \"restore\" must be true or false"},
        // The others.
        FaultyLine{R"({"do": "show"})", "show: \"panel\" is missing"},
        FaultyLine{R"({"do": "hide", "panel": 1})", "hide: \"panel\" must be a string"},
        FaultyLine{R"({"do": "pick", "panel": "print", "control": "x"})",
                   "pick: \"choice\" or \"checked\" is missing"},
        FaultyLine{R"({"do": "pick", "panel": "print", "choice": "x"})",
                   "pick: \"control\" is missing"},
        FaultyLine{R"({"do": "pick", "panel": "print", "control": "x", "checked": "ON"})",
                   "pick: \"checked\" must be true or false"},
        FaultyLine{R"({"do": "slide", "keyword": "x"})", "slide: \"value\" is missing"},
        FaultyLine{R"({"do": "slide", "keyword": "x", "value": "7"})",
                   "slide: \"value\" must be a number"},
        FaultyLine{R"({"do": "fold", "panel": "print"})", "fold: \"open\" is missing"},
        FaultyLine{R"({"do": "paper", "name": "A4", "ppdName": "A4", "width": 1})",
                   "paper: \"height\" is missing"},
        FaultyLine{R"({"do": "paper", "name": null, "ppdName": null, "width": 1, "height": 1})",
                   "paper: \"name\" must be a string"},
        FaultyLine{
            R"({"do": "paper", "name": "", "ppdName": "", "width": 1, "height": 1, "mapped": 1})",
            "paper: \"mapped\" must be a string or null"},
        FaultyLine{R"({"do": "mark", "keyword": "x"})", "mark: \"choice\" is missing"},
        FaultyLine{R"({"do": "ticket", "key": "x"})", "ticket: \"value\" is missing"},
        FaultyLine{R"({"do": "ticket", "key": "x", "value": []})",
                   "ticket: \"value\" must be a string, a number, a boolean or null"},
        FaultyLine{R"({"do": "window"})", "window: \"height\" is missing"},
        FaultyLine{R"({"do": "window", "height": true})",
                   "window: \"height\" must be a number or null"},
        FaultyLine{R"({"do": "restore"})", "restore: \"panel\" is missing"},
        FaultyLine{R"({"do": "save"})", "save: \"panel\" is missing"},
        FaultyLine{R"({"do": "summary"})", "summary: \"panel\" is missing"},
        FaultyLine{R"({"do": "help"})", "help: \"panel\" is missing"},
        FaultyLine{R"({"do": "picture"})", "picture: \"file\" is missing"},
        FaultyLine{R"({"do": "post"})", "post: \"name\" is missing"},
        FaultyLine{R"({"do": "post", "name": "x", "userInfo": null})",
                   "post: \"userInfo\" must be an object"},
        // Answers.
        FaultyLine{R"({"do": "print", "answers": {}})",
                   "print: \"answers\" must be a list of objects with button (a whole number from "
                   "0) and suppress (true or false)"},
        FaultyLine{R"({"do": "print", "answers": [{"button": 0.5}]})",
                   "print: \"answers\" must be a list of objects with button (a whole number from "
                   "0) and suppress (true or false)"},
        FaultyLine{R"({"do": "print", "answers": [{}, {"suppress": 1}]})",
                   "print: \"answers\" must be a list of objects with button (a whole number from "
                   "0) and suppress (true or false)"}));

TEST(ReplayScript, BlankLinesAndCommentsSayNothing)
{
    for (const char *line : {"", "\n", "  \t\r\n", "# comment", "   # {\"do\": \"dance\"}\n"}) {
        const auto read = readScriptLine(line);
        EXPECT_FALSE(read->has_value()) << line;
        EXPECT_TRUE(read.sentence().isNull()) << line;
    }
}

TEST(ReplayScript, ABareOpenHasTheDefaultsOfARealDialog)
{
    const auto open = readAction<ReplayOpen>(R"({"do": "open", "ppd": "a/b.ppd"})");
    EXPECT_EQ(open.options.ppdPath, u"/scripts/a/b.ppd"_s);
    EXPECT_EQ(open.options.dialogType, u"BDB091F4-E57F-11D3-B5CC-0050E4603277"_s);
    EXPECT_FALSE(open.options.paper);
    EXPECT_EQ(open.options.languages, QStringList{u"en"_s});
    EXPECT_EQ(open.options.strings, Bundle::Strings::Tables);
    EXPECT_EQ(open.options.alertMemory, QVariantMap());
    EXPECT_TRUE(open.options.restore);
    EXPECT_EQ(open.windowHeight, 800);
}

TEST(ReplayScript, OpenTakesEveryField)
{
    const auto open = readAction<ReplayOpen>(
        R"({"do": "open", "ppd": "/b.ppd", "type": "T", "marks": {"A": "B"}, )"
        R"("ticket": {"s": "1", "n": 1, "d": 1.5, "b": true}, )"
        R"("paper": {"name": "X", "ppdName": null, "width": 1.5, "height": 2}, )"
        R"("languages": ["ja", "en"], "strings": "keys", "alerts": {"K": false}, )"
        R"("refuse": ["A=B", "C"], "lacks": ["printSettings", "pageFormat"], )"
        R"("info": {"I": [1]}, "windowHeight": null, "restore": false})");
    const SessionOptions &options = open.options;
    EXPECT_EQ(options.ppdPath, u"/b.ppd"_s);
    EXPECT_EQ(options.dialogType, u"T"_s);
    EXPECT_EQ(options.marks, (QMap<QString, QString>{{u"A"_s, u"B"_s}}));
    EXPECT_EQ(options.ticket.value(u"s"_s), QVariant(u"1"_s));
    EXPECT_EQ(options.ticket.value(u"n"_s), QVariant(qlonglong(1)));
    EXPECT_EQ(options.ticket.value(u"d"_s), QVariant(1.5));
    EXPECT_EQ(options.ticket.value(u"b"_s), QVariant(true));
    ASSERT_TRUE(options.paper);
    EXPECT_EQ(options.paper->name, u"X"_s);
    EXPECT_TRUE(options.paper->ppdName.isNull());
    EXPECT_EQ(options.paper->width, 1.5);
    EXPECT_EQ(options.languages, (QStringList{u"ja"_s, u"en"_s}));
    EXPECT_EQ(options.strings, Bundle::Strings::Keys);
    EXPECT_EQ(options.alertMemory, (QVariantMap{{u"K"_s, false}}));
    EXPECT_EQ(options.refused, (QStringList{u"A=B"_s, u"C"_s}));
    EXPECT_EQ(options.lacking, (std::set{HostOperation::PrintSettings, HostOperation::PageFormat}));
    EXPECT_EQ(options.info, (QVariantMap{{u"I"_s, QVariantList{qlonglong(1)}}}));
    EXPECT_FALSE(open.windowHeight);
    EXPECT_FALSE(options.restore);
}

TEST(ReplayScript, APaperMayLeaveTheMappingAloneSetItOrRemoveIt)
{
    const auto mapped = [](const char *member) {
        const QByteArray line =
            QByteArray(
                R"({"do": "paper", "name": "A4", "ppdName": null, "width": 1, "height": 2)") +
            member + "}";
        return readAction<ReplayPaper>(line.constData()).mapped;
    };
    EXPECT_EQ(mapped(""), std::nullopt);
    EXPECT_EQ(mapped(R"(, "mapped": "A3")"), u"A3"_s);
    ASSERT_TRUE(mapped(R"(, "mapped": null)"));
    EXPECT_TRUE(mapped(R"(, "mapped": null)")->isNull());
}

TEST(ReplayScript, AnswersMayLeaveOutEitherMember)
{
    const auto line =
        readScriptLine(R"({"do": "print", "answers": [{}, {"button": 2}, {"suppress": true}]})");
    ASSERT_TRUE(line && line->has_value());
    const QList<ReplayAnswer> &answers = (*line)->answers;
    ASSERT_EQ(answers.size(), 3);
    EXPECT_EQ(answers[0].button, std::nullopt);
    EXPECT_EQ(answers[0].suppress, std::nullopt);
    EXPECT_EQ(answers[1].button, 2);
    EXPECT_EQ(answers[2].suppress, true);
}

TEST(ReplayScript, MembersThatNobodyKnowsArePassedOver)
{
    EXPECT_TRUE(readScriptLine(R"({"do": "state", "comment": "why"})")->has_value());
}
