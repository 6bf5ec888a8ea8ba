// Findings do not depend on where a model is, how it is turned, numbered or sorted.
#include <gmock/gmock.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <sstream>

#include "model_findings.h"
#include "models/frame_building.h"

namespace tamur::host {
namespace {

namespace fs = std::filesystem;

using Words = std::vector<std::string>;
using Change = std::function<void(std::vector<Words>& elements)>;

std::string Contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Words WordsOf(const std::string& line)
{
    std::istringstream words(line);
    return {std::istream_iterator<std::string>(words), {}};
}

// The text with its element lines changed.
std::string Changed(const std::string& text, const Change& change)
{
    std::istringstream lines(text);
    std::string line, result, header;
    std::vector<Words> elements;
    bool isElement = false;
    while (std::getline(lines, line)) {
        // Also with its accent, in whatever code page.
        if (line.starts_with("#")) isElement = line.starts_with("#El") && line.ends_with("ments");
        if (isElement && line.starts_with("#")) {
            header = line + '\n';
        } else if (isElement) {
            elements.push_back(WordsOf(line));
        } else if (!isElement) {
            result += line + '\n';
        }
    }
    change(elements);
    result += header;
    for (const Words& words : elements) {
        for (const std::string& word : words) result += word + ' ';
        result += '\n';
    }
    return result;
}

// Calls move(x, y, z) for each point of the elements.
template <class Move>
Change Moving(Move move)
{
    return [move](std::vector<Words>& elements) {
        for (Words& words : elements) {
            const int points = std::stoi(words[3]);
            for (std::size_t i = 5; i + 2 < 5 + 3 * static_cast<std::size_t>(points); i += 3) {
                double at[3];
                for (std::size_t k = 0; k < 3; ++k) at[k] = std::stod(words[i + k]);
                move(at[0], at[1], at[2]);
                for (std::size_t k = 0; k < 3; ++k) {
                    char digits[40];
                    const auto end = std::to_chars(digits, digits + sizeof digits, at[k]);
                    words[i + k].assign(digits, end.ptr);
                }
            }
        }
    };
}

void Shuffle(std::vector<Words>& elements)
{
    std::mt19937 random(20240229);
    std::shuffle(elements.begin(), elements.end(), random);
}

// The numbers keep their order.
std::int64_t NewIdentifier(std::int64_t identifier)
{
    return 7 * identifier + 1000;
}
void Renumber(std::vector<Words>& elements)
{
    for (Words& words : elements) words[1] = std::to_string(NewIdentifier(std::stoll(words[1])));
}

// The models, without the one that is there to be too much.
std::vector<std::pair<std::string, std::string>> Models()
{
    std::vector<std::pair<std::string, std::string>> models;
    for (const char* folder : {TAMUR_FIXTURES, TAMUR_SAMPLES}) {
        for (const auto& entry : fs::directory_iterator(folder)) {
            const std::string name = entry.path().filename().string();
            if (name.starts_with("TMR430") || (name.starts_with("TMR") && name < "TMR400"))
                continue;
            if (name == "erreurs.txt") continue;  // not every line is in a section
            models.emplace_back(name, Contents(entry.path()));
        }
    }
    models.emplace_back("building", test::Write({4, 3, 3}));
    // Its columns are turned out of their feet: hundreds of findings of a few kinds.
    models.emplace_back("leaning",
                        Changed(test::Write({3, 3, 2}), Moving([](double& x, double&, double& z) {
                                    if (z == 0 && x > 5) x += 0.004;
                                })));
    return models;
}

void ExpectSame(const Change& change)
{
    for (const auto& [name, text] : Models()) {
        EXPECT_EQ(TextsOf(ModelFindings(Changed(text, change))), TextsOf(ModelFindings(text)))
            << name;
    }
}

TEST(MovedModels, SayTheSame)
{
    ExpectSame(Moving([](double& x, double& y, double& z) {
        x += 1000.25;
        y -= 317.5;
        z += 12;
    }));
}

TEST(TurnedModels, SayTheSame)
{
    ExpectSame(Moving([](double& x, double& y, double&) {
        std::swap(x, y);
        x = -x;
    }));
    ExpectSame(Moving([](double&, double& y, double& z) {
        std::swap(y, z);
        y = -y;
    }));
}

TEST(ShuffledModels, SayTheSame)
{
    ExpectSame(Shuffle);
}

TEST(RenumberedModels, SayTheSameOfTheSameRecords)
{
    using Said = std::vector<std::tuple<Code, Kind, std::int64_t>>;
    const auto saidOf = [](const std::string& text, bool isOld) {
        Said said;
        for (const Finding& finding : ModelFindings(text)) {
            const bool isElement = ElementNumberOf(finding.kind) != 0;
            said.emplace_back(
                finding.code, finding.kind,
                isOld && isElement ? NewIdentifier(finding.identifier) : finding.identifier);
        }
        std::sort(said.begin(), said.end());
        return said;
    };
    for (const auto& [name, text] : Models()) {
        EXPECT_EQ(saidOf(Changed(text, Renumber), false), saidOf(text, true)) << name;
    }
}

}  // namespace
}  // namespace tamur::host
