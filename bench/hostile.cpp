// Twice the size must not take more than twice the time, whatever the file holds.
#include "hostile_families.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "component_subject.h"
#include "context.h"

namespace tamur::bench {
namespace {

constexpr double kMost = 2.2;

class HostileFile {
 public:
    HostileFile(const HostileFamily& family, int size, const std::filesystem::path& path)
        : path_(path)
    {
        std::string text = "#Version\n14.1E\n#Espace\n2\n#Tolerance\n0.001\n#Rigide\n1\n";
        family.write(text, size);
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path_.c_str(), "wb"),
                                                                   &std::fclose);
        if (file == nullptr ||
            std::fwrite(text.data(), 1, text.size(), file.get()) != text.size()) {
            throw std::runtime_error("cannot write " + path_.string());
        }
    }
    HostileFile(const HostileFile&) = delete;
    HostileFile& operator=(const HostileFile&) = delete;
    ~HostileFile() { std::filesystem::remove(path_); }

    // Import and release together.
    [[nodiscard]] double Time() const
    {
        return Timed([this] { (void)Imported(path_); });
    }

 private:
    std::filesystem::path path_;
};

}  // namespace

void MeasureHostileFiles(Context& context)
{
    for (const HostileFamily& family : HostileFamilies()) {
        const int size = context.isQuick ? family.size / 10 : family.size;
        const HostileFile once(family, size, context.files.Folder() / "once.txt");
        const HostileFile twice(family, 2 * size, context.files.Folder() / "twice.txt");
        const auto samples = MeasureInterleaved(
            {{"once", [&] { return once.Time(); }}, {"twice", [&] { return twice.Time(); }}},
            context.rounds);
        Row row = Ratio(std::string("twice: ") + family.name, samples[1], samples[0]);
        row.must = kMost;
        context.report.Add(row);
        context.report.AddFact(std::string("milliseconds, ") + family.name,
                               std::to_string(samples[0].Median() * 1e3));
    }
}

}  // namespace tamur::bench
