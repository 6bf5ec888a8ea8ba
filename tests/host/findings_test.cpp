// Codes, texts and counts of findings.
#include "host/findings/findings.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>

#include "host/findings/plain_text.h"

namespace tamur::host {
namespace {

using testing::ElementsAre;
using testing::Pair;

Finding At(std::uint32_t line, Code code = Code::kUnknownKind)
{
    return {.code = code, .place = {.line = line}, .values = {"19"}};
}

TEST(FindingCodes, AreUniqueAndSpokenInEveryLanguage)
{
    std::set<Code> codes;
    std::set<std::string_view> names;
    for (const CodeInfo& info : AllCodes()) {
        EXPECT_TRUE(codes.insert(info.code).second) << IdOf(info.code);
        EXPECT_TRUE(names.insert(info.name).second) << info.name;
        for (std::string_view text : info.texts) EXPECT_FALSE(text.empty()) << IdOf(info.code);
    }
}

TEST(FindingCodes, SayTheSameValuesInEveryLanguage)
{
    for (const CodeInfo& info : AllCodes()) {
        for (char value = '0'; value <= '9'; ++value) {
            const std::string mark = {'{', value, '}'};
            EXPECT_EQ(info.texts[0].find(mark) == std::string_view::npos,
                      info.texts[1].find(mark) == std::string_view::npos)
                << IdOf(info.code) << ' ' << mark;
        }
    }
}

TEST(FindingTexts, NameTheRecordAndTheValues)
{
    Finding finding = At(3);
    finding.kind = Kind::kBar;
    finding.identifier = 103;
    EXPECT_THAT(TextOf(finding, Language::kEnglish),
                testing::StartsWith("bar 103: there is no kind of element 19"));
    EXPECT_THAT(TextOf(finding, Language::kFrench), testing::StartsWith("filaire 103 : "));
}

TEST(FindingTexts, ValuesWithMarksAreNotFilledAgain)
{
    Finding finding = At(3);
    finding.values = {"{1}{2}"};
    EXPECT_THAT(TextOf(finding, Language::kEnglish), testing::HasSubstr("{1}{2}"));
}

TEST(PlainTexts, ShowWhatTerminalsWouldObey)
{
    EXPECT_EQ(PlainText("a\x1B[31m\x7F\n"), "a\\u001B[31m\\u007F\\u000A");
    EXPECT_EQ(PlainText("\u009B1m\u202E\u2028"), "\\u009B1m\\u202E\\u2028");
    EXPECT_EQ(PlainText("Arbalétrier \xC3\x28"), "Arbalétrier ?(");
}

TEST(PlainTexts, AreCut)
{
    EXPECT_EQ(PlainText("ééééé", 5), "ééééé");
    EXPECT_EQ(PlainText("éééééé", 5), "ééééé…");
}

TEST(FindingLists, HoldTheFirstAndCountTheRest)
{
    Findings findings(2);
    for (std::uint32_t line : {9u, 4u, 5u, 1u}) findings.Add(At(line));
    findings.Count(Code::kUnknownKind);
    std::vector<std::uint32_t> lines;
    for (const Finding& finding : findings.InFileOrder()) lines.push_back(finding.place.line);
    EXPECT_THAT(lines, ElementsAre(4, 9));
    EXPECT_EQ(findings.CountOf(Code::kUnknownKind), 5);
    EXPECT_EQ(findings.CountOf(Severity::kWarning), 5);
    EXPECT_THAT(findings.NotHeld(), ElementsAre(Pair(Code::kUnknownKind, 3)));
}

TEST(FindingLists, TakeOnlyTheCodesAskedFor)
{
    Findings findings(Findings::kAll, {.select = {"TMR2"}, .ignore = {"TMR201"}});
    findings.Add(At(1));
    findings.Add(At(1, Code::kNothingSupported));
    EXPECT_EQ(findings.CountOf(Severity::kWarning) + findings.CountOf(Severity::kError), 0);
    EXPECT_TRUE(findings.InFileOrder().empty());
    EXPECT_TRUE(findings.NotHeld().empty());
    EXPECT_FALSE(findings.Holds(Code::kUnknownKind));
}

}  // namespace
}  // namespace tamur::host
