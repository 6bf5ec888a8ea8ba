// Writes what the fuzzers start from: for each fuzzer a folder with inputs of its own kind.
// usage: write_seeds FOLDER
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "models/seeds.h"
#include "models/line_generator.h"

namespace tamur::test {
namespace {

// The files of one fuzzer, by number.
class SeedFolder {
 public:
    explicit SeedFolder(std::filesystem::path path) : path_(std::move(path))
    {
        std::filesystem::create_directories(path_);
    }

    void Add(std::string_view content)
    {
        std::ofstream file(path_ / std::to_string(count_++), std::ios::binary);
        file << content;
        if (!file.flush()) throw std::runtime_error("cannot write into " + path_.string());
    }

 private:
    std::filesystem::path path_;
    int count_ = 0;
};

// The lines after the first such header, up to the next one.
std::string_view LinesAfter(std::string_view text, std::string_view header)
{
    const std::size_t found = text.find(header);
    if (found == text.npos) return {};
    text.remove_prefix(text.find('\n', found) + 1);
    return text.substr(0, std::min(text.find("\n#"), text.size() - 1) + 1);
}

// Models that the 256 KiB of the import's buffer do not hold at once, with lines around the
// greatest length, 49999 characters: one is first, one lies over the end of the buffer.
std::vector<std::string> LargeModels()
{
    constexpr std::size_t kBuffer = std::size_t{256} << 10;
    constexpr std::size_t kLongest = 49999;
    std::vector<std::string> models;
    for (const std::string_view end : {"\n", "\r\n"}) {
        for (const std::size_t length : {kLongest - 1, kLongest, kLongest + 1}) {
            const std::string node = "1 1 0 1 1 1 2 3 ";
            const std::string longLine = node + std::string(length - node.size(), 'x');
            std::string text = "#Version\n15.0\n#Elements\n";
            text += longLine;
            for (text += end; text.size() < kBuffer - length / 2; text += end) text += node + "A";
            text += longLine;
            text += end;
            text += "2 1 0 2 1 0 0 0 1 1 1 B 0 0 0 1\n#Cas\n1 G 1 G 0\n";
            models.push_back(text);
        }
    }
    return models;
}

void WriteModels(const std::filesystem::path& folder)
{
    const std::vector<Seed> seeds = Seeds();
    SeedFolder models(folder / "whole_file");
    SeedFolder pairs(folder / "two_files");
    SeedFolder elements(folder / "element_line");
    SeedFolder parameters(folder / "parameter_line");
    for (const std::string& text : LargeModels()) models.Add(text);
    for (std::size_t i = 0; i < seeds.size(); ++i) {
        const std::string& text = seeds[i].text;
        models.Add(text);
        pairs.Add(text + '\x1D' + seeds[(i + 1) % seeds.size()].text);
        elements.Add(LinesAfter(text, "#Elements"));
        parameters.Add(LinesAfter(text, "#TAB_PARAM_CAS"));
    }
}

void WriteLines(const std::filesystem::path& folder)
{
    constexpr int kCount = 200;
    LineGenerator generator(1);
    SeedFolder formats(folder / "format_scanner");
    SeedFolder streams(folder / "stream_scanner");
    for (int i = 0; i < kCount; ++i) {
        const std::string line = generator.Line();
        formats.Add(line);
        std::string types;
        for (int k = 0; k < 8; ++k) types += static_cast<char>(generator.Below(6));
        streams.Add(types + line);
    }
}

void WriteArguments(const std::filesystem::path& folder)
{
    SeedFolder arguments(folder / "tool_arguments");
    for (const std::string_view line :
         {"", "--help", "--version", "info", "info\n--help", "info\nsamples/portique.txt",
          "check\nsamples/portique.txt", "dump\nsamples/portique.txt",
          "dump\n--pretty\nsamples/portique.txt", "dump\n--pretty=1\n--\nsamples/portique.txt",
          "--component\nlibm.so.6\ninfo\nsamples/portique.txt",
          "--component=/dev/null\ndump\nsamples/portique.txt", "info\n/dev/zero", "check\n/tmp",
          "dump\n/dev/stdin", "info\nsamples/../samples/portique.txt", "info\n-\n-p\n/x\n\n "}) {
        arguments.Add(line);
    }
}

}  // namespace
}  // namespace tamur::test

int main(int count, char** arguments)
{
    if (count != 2) return 2;
    const std::filesystem::path folder = arguments[1];
    tamur::test::WriteModels(folder);
    tamur::test::WriteLines(folder);
    tamur::test::WriteArguments(folder);
    return 0;
}
