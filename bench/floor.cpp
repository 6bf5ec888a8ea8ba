#include "floor.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "runner.h"

namespace tamur::bench {
namespace {

constexpr std::size_t kBlock = std::size_t{256} << 10;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// Without a buffer: blocks come straight from the system.
File Open(const std::filesystem::path& path)
{
    File file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (file == nullptr) throw std::runtime_error("cannot read " + path.string());
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

// Where what is not counted goes: no kind of element is 0.
constexpr std::size_t kOther = 0;
constexpr std::size_t kElements = std::tuple_size_v<Counts>;

std::size_t SectionOf(std::string_view header)
{
    if (header.ends_with('\r')) header.remove_suffix(1);
    if (header == "#Elements") return kElements;
    if (header == "#Materiaux") return kMaterials;
    if (header == "#Geometries") return kSections;
    return header == "#Attaches" ? kReleases : kOther;
}

class Floor {
 public:
    // Not inlined into the loop over the lines: that would slow both down.
    [[gnu::noinline]] void ReadLine(const char* begin, const char* end)
    {
        if (begin == end) return;
        if (*begin == '#') {
            section_ = SectionOf({begin, end});
            return;
        }
        double first = 0;
        bool isFirst = true;
        for (const char* at = begin;;) {
            while (at != end && (*at == ' ' || *at == '\r')) ++at;
            if (at == end) break;
            const char* token = at;
            while (at != end && *at != ' ' && *at != '\r') ++at;
            double value = 0;
            std::from_chars(token, at, value);
            if (isFirst) first = value;
            isFirst = false;
            sum_ += value;
        }
        if (!isFirst) ++counts_[section_ == kElements ? KindOf(first) : section_];
    }

    [[nodiscard]] const Counts& Result()
    {
        Keep(sum_);
        counts_[kOther] = 0;
        return counts_;
    }

 private:
    static std::size_t KindOf(double number)
    {
        return number >= 1 && number <= 22 ? static_cast<std::size_t>(number) : kOther;
    }

    std::size_t section_ = kOther;
    Counts counts_ = {};
    double sum_ = 0;  // so that no conversion can be left out
};

}  // namespace

Counts ReadWithFloor(const std::filesystem::path& path)
{
    const File file = Open(path);
    const auto buffer = std::make_unique_for_overwrite<char[]>(kBlock);
    Floor floor;
    std::size_t kept = 0;
    for (;;) {
        const std::size_t got = std::fread(buffer.get() + kept, 1, kBlock - kept, file.get());
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
    const File file = Open(path);
    const auto buffer = std::make_unique_for_overwrite<char[]>(kBlock);
    while (std::fread(buffer.get(), 1, kBlock, file.get()) != 0) Keep(buffer);
}

}  // namespace tamur::bench
