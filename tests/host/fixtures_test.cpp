// Every code has files that give it and no other: fixtures/TMRnnn-what-is-in-it.txt.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "checked_file.h"

namespace tamur::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

fs::path Fixtures()
{
    return fs::path(TAMUR_SOURCES) / "tests" / "host" / "fixtures";
}

std::vector<fs::path> AllFixtures()
{
    std::vector<fs::path> paths;
    for (const auto& entry : fs::directory_iterator(Fixtures())) paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string CodeOf(const fs::path& fixture)
{
    return fixture.filename().string().substr(0, std::size("TMRnnn") - 1);
}

// What no file of the folder can show: see Refusals in file_findings_test.cpp.
const std::set<std::string> kWithoutFile = {"TMR001", "TMR006", "TMR011", "TMR020"};

TEST(Fixtures, GiveTheirCodeAndNoOther)
{
    for (const fs::path& fixture : AllFixtures()) {
        const CheckedFile file(fixture, CheckedFile::Scope::kModelToo);
        EXPECT_THAT(file.Codes(), ElementsAre(CodeOf(fixture)))
            << fixture.filename() << '\n'
            << testing::PrintToString(file.Lines());
    }
}

TEST(Fixtures, AddUp)
{
    for (const fs::path& fixture : AllFixtures()) {
        EXPECT_TRUE(CheckedFile(fixture).imported.balance.AddsUp()) << fixture.filename();
    }
}

TEST(Fixtures, AreThereForEveryCode)
{
    std::set<std::string> shown = kWithoutFile;
    for (const fs::path& fixture : AllFixtures()) shown.insert(CodeOf(fixture));
    for (const host::CodeInfo& info : host::AllCodes()) {
        EXPECT_EQ(shown.count(host::IdOf(info.code)), 1) << host::IdOf(info.code);
    }
}

TEST(Fixtures, AreAboutCodesThatExist)
{
    std::set<std::string> codes;
    for (const host::CodeInfo& info : host::AllCodes()) codes.insert(host::IdOf(info.code));
    for (const fs::path& fixture : AllFixtures()) {
        EXPECT_EQ(codes.count(CodeOf(fixture)), 1) << fixture.filename();
    }
}

// The pages that tell users what a code means.
TEST(Fixtures, AreExplainedInTheDocuments)
{
    std::vector<std::string> explained;
    for (const char* name : {"file.md", "model.md"}) {
        std::ifstream page(fs::path(TAMUR_SOURCES) / "docs" / "check" / name);
        for (std::string line; std::getline(page, line);) {
            constexpr std::string_view kStart = "### ";
            if (line.starts_with(std::string(kStart) + "TMR")) {
                explained.push_back(CodeOf(line.substr(kStart.size())));
            }
        }
    }
    std::vector<std::string> codes;
    for (const host::CodeInfo& info : host::AllCodes()) codes.push_back(host::IdOf(info.code));
    EXPECT_EQ(explained, codes);
}

TEST(Samples, GiveNotesAtMost)
{
    for (const char* name : {"batiment", "hall", "portique"}) {
        const CheckedFile file(SampleFile(name), CheckedFile::Scope::kModelToo);
        for (const host::Finding& finding : file.findings.InFileOrder()) {
            EXPECT_EQ(InfoOf(finding.code).severity, host::Severity::kNote)
                << name << ' ' << TextOf(finding, host::Language::kEnglish);
        }
        EXPECT_TRUE(file.imported.balance.AddsUp()) << name;
    }
}

}  // namespace
}  // namespace tamur::test
