// Each finding about a model has a fixture that gives it and no other; the samples give none.
#include <gmock/gmock.h>

#include <filesystem>
#include <set>

#include "model_findings.h"

namespace tamur::host {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFixtures = TAMUR_FIXTURES;
constexpr const char* kSamples = TAMUR_SAMPLES;

bool IsOfModel(Code code)
{
    return static_cast<int>(code) >= 400;
}

std::vector<fs::path> ModelFixtures()
{
    std::vector<fs::path> paths;
    for (const auto& entry : fs::directory_iterator(kFixtures)) {
        if (entry.path().filename().string() >= "TMR400") paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::vector<Finding> FindingsIn(const fs::path& path)
{
    const auto reader = test::NewReader();
    EXPECT_EQ(test::ImportFile(*reader, path), S_OK) << path;
    return ModelFindings(*reader);
}

TEST(ModelFixtures, GiveTheirFindingAlone)
{
    for (const fs::path& path : ModelFixtures()) {
        const std::string id = path.filename().string().substr(0, 6);
        const std::vector<Finding> found = FindingsIn(path);
        EXPECT_FALSE(found.empty()) << path;
        for (const Finding& finding : found) {
            EXPECT_EQ(IdOf(finding.code), id) << TextOf(finding, Language::kEnglish);
        }
    }
}

TEST(ModelFixtures, AreThereForEveryFinding)
{
    std::set<std::string> ids;
    for (const fs::path& path : ModelFixtures()) {
        ids.insert(path.filename().string().substr(0, 6));
    }
    for (const CodeInfo& info : AllCodes()) {
        EXPECT_TRUE(!IsOfModel(info.code) || ids.contains(IdOf(info.code))) << info.name;
    }
}

TEST(Samples, HaveNotesOnly)
{
    for (const auto& entry : fs::directory_iterator(kSamples)) {
        const std::vector<Finding> found = FindingsIn(entry.path());
        for (const Finding& finding : found) {
            EXPECT_EQ(InfoOf(finding.code).severity, Severity::kNote)
                << entry.path() << ' ' << TextOf(finding, Language::kEnglish);
        }
        EXPECT_LE(found.size(), 6) << entry.path();
    }
}

}  // namespace
}  // namespace tamur::host
