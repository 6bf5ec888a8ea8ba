#include "floor.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <charconv>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace tamur::bench {
namespace {

constexpr std::size_t kBlock = std::size_t{256} << 10;

class Descriptor {
 public:
    explicit Descriptor(const std::filesystem::path& path) : value_(open(path.c_str(), O_RDONLY))
    {
        if (value_ < 0) throw std::runtime_error("cannot read " + path.string());
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(value_); }

    std::size_t Read(char* buffer, std::size_t size) const
    {
        const ssize_t got = read(value_, buffer, size);
        return got > 0 ? static_cast<std::size_t>(got) : 0;
    }

 private:
    int value_;
};

enum class Section {
    kOther,
    kGroups,
    kMaterials,
    kSections,
    kReleases,
    kCases,
    kParameters,
    kElements
};

Section SectionOf(std::string_view header)
{
    if (header.ends_with('\r')) header.remove_suffix(1);
    if (header == "#Groupes") return Section::kGroups;
    if (header == "#Materiaux") return Section::kMaterials;
    if (header == "#Geometries") return Section::kSections;
    if (header == "#Attaches") return Section::kReleases;
    if (header == "#Cas") return Section::kCases;
    if (header == "#TAB_PARAM_CAS") return Section::kParameters;
    if (header == "#Elements") return Section::kElements;
    return Section::kOther;
}

class Floor {
 public:
    void ReadLine(const char* begin, const char* end)
    {
        if (begin == end) return;
        if (*begin == '#') {
            section_ = SectionOf({begin, static_cast<std::size_t>(end - begin)});
            return;
        }
        double first[2] = {};
        int count = 0;
        for (const char* at = begin;;) {
            while (at != end && (*at == ' ' || *at == '\r')) ++at;
            if (at == end) break;
            const char* token = at;
            while (at != end && *at != ' ' && *at != '\r') ++at;
            double value = 0;
            std::from_chars(token, at, value);
            if (count < 2) first[count] = value;
            ++count;
            sum_ += value;
        }
        if (count != 0) CountLine(static_cast<int>(first[0]), static_cast<int>(first[1]));
    }

    [[nodiscard]] const Counts& Result() const
    {
        benchmark::DoNotOptimize(sum_);
        return counts_;
    }

 private:
    void CountLine(int first, int second)
    {
        switch (section_) {
            case Section::kElements:
                if (first >= 1 && first <= 22) ++counts_.elements[static_cast<std::size_t>(first)];
                break;
            case Section::kGroups: ++counts_.groups; break;
            case Section::kMaterials: ++counts_.materials; break;
            case Section::kSections: ++counts_.sections; break;
            case Section::kReleases: ++counts_.releases; break;
            case Section::kCases: ++counts_.cases; break;
            case Section::kParameters:
                if (second == 2) ++counts_.combinations;
                if (second == 4) ++counts_.seismicCases;
                if (second == 9) ++counts_.envelopes;
                break;
            case Section::kOther: break;
        }
    }

    Section section_ = Section::kOther;
    Counts counts_;
    double sum_ = 0;  // so that no conversion can be left out
};

}  // namespace

Counts ReadWithFloor(const std::filesystem::path& path)
{
    const Descriptor file(path);
    const auto buffer = std::make_unique_for_overwrite<char[]>(kBlock);
    Floor floor;
    std::size_t kept = 0;
    for (;;) {
        const std::size_t got = file.Read(buffer.get() + kept, kBlock - kept);
        const char* const end = buffer.get() + kept + got;
        const char* line = buffer.get();
        while (line != end) {
            const void* const feed = std::memchr(line, '\n', static_cast<std::size_t>(end - line));
            if (feed == nullptr) break;
            floor.ReadLine(line, static_cast<const char*>(feed));
            line = static_cast<const char*>(feed) + 1;
        }
        kept = static_cast<std::size_t>(end - line);
        if (got == 0) {
            floor.ReadLine(line, end);
            return floor.Result();
        }
        std::memmove(buffer.get(), line, kept);
    }
}

void ReadBytes(const std::filesystem::path& path)
{
    const Descriptor file(path);
    const auto buffer = std::make_unique_for_overwrite<char[]>(kBlock);
    while (file.Read(buffer.get(), kBlock) != 0) benchmark::ClobberMemory();
}

}  // namespace tamur::bench
