// Writes models into a folder, 00000.txt and on: the first half are seeds with one change, taken
// evenly from all that there are, the others are generated. With "hostile", files made to be slow
// to read or to take much memory follow, small ones. usage: write_models FOLDER COUNT [hostile]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "models/changes.h"
#include "models/seeds.h"
#include "models/generated.h"
#include "models/hostile_families.h"
#include "support/model_text.h"

namespace tamur::test {
namespace {

class ModelFolder {
 public:
    explicit ModelFolder(std::filesystem::path path) : path_(std::move(path))
    {
        std::filesystem::create_directories(path_);
    }

    void Add(const std::string& content)
    {
        char name[16];
        (void)std::snprintf(name, sizeof name, "%05u.txt", count_++);
        std::ofstream file(path_ / name, std::ios::binary);
        file << content;
        if (!file.flush()) throw std::runtime_error("cannot write into " + path_.string());
    }

    [[nodiscard]] unsigned Count() const { return count_; }

 private:
    std::filesystem::path path_;
    unsigned count_ = 0;
};

void WriteChanged(ModelFolder& folder, std::size_t count)
{
    std::vector<Changes> seeds;
    std::size_t changes = 0;
    for (const Seed& seed : Seeds()) {
        seeds.emplace_back(seed.text);
        changes += seeds.back().Count();
    }
    std::size_t seed = 0;
    std::size_t before = 0;  // the changes of the seeds that are done
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t change = changes * i / count;
        while (change - before >= seeds[seed].Count()) before += seeds[seed++].Count();
        folder.Add(seeds[seed].Apply(change - before));
    }
}

void WriteHostile(ModelFolder& folder)
{
    constexpr int kSmaller = 2000;  // than what takes some tens of milliseconds
    constexpr int kLines = 20;
    for (const bench::HostileFamily& family : bench::HostileFamilies()) {
        std::string text = ModelText().Text();
        family.write(text, std::max(family.size / kSmaller, 2));
        folder.Add(text);
    }
    for (const bench::MinimalLine& minimal : bench::MinimalLines()) {
        std::string text = ModelText().Text() + minimal.sections;
        for (int i = 0; i < kLines; ++i) text += minimal.line;
        folder.Add(text);
    }
}

}  // namespace
}  // namespace tamur::test

int main(int argumentCount, char** arguments)
{
    using namespace tamur::test;
    const bool isHostileToo = argumentCount == 4 && std::string(arguments[3]) == "hostile";
    if (argumentCount != 3 && !isHostileToo) return 2;
    ModelFolder folder(arguments[1]);
    const std::size_t count = std::strtoul(arguments[2], nullptr, 10);
    WriteChanged(folder, count / 2);
    while (folder.Count() < count) folder.Add(GeneratedModel(folder.Count()));
    if (isHostileToo) WriteHostile(folder);
    return 0;
}
