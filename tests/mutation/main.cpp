// Imports changed models, one after the other, and reads everything that came of each. There is
// nothing to compare with: that it ends, without a crash, a leak or a word from a sanitizer, is the
// test. usage: mutation_tests [SHARE]: takes every SHARE-th change, 20 when it is not given.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "mutation/mutations.h"
#include "mutation/seeds.h"
#include "support/component_under_test.h"
#include "support/message_boxes.h"
#include "support/read_everything.h"

namespace tamur::test {
namespace {

// One file, written over and over.
class Scratch {
 public:
    Scratch()
    {
        const std::filesystem::path memory = "/dev/shm";
        folder_ = std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
        path_ = folder_ / ("tamur-mutation-" + std::to_string(std::rand()) + ".txt");
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    ~Scratch() { std::filesystem::remove(path_); }

    void Write(const std::string& content) const
    {
        std::FILE* const file = std::fopen(path_.string().c_str(), "wb");
        if (file == nullptr ||
            std::fwrite(content.data(), 1, content.size(), file) != content.size()) {
            std::perror("scratch file");
            std::exit(2);
        }
        (void)std::fclose(file);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
    std::filesystem::path folder_;
    std::filesystem::path path_;
};

std::size_t Run(std::size_t share)
{
    const CaughtMessageBoxes boxes;
    const Scratch scratch;
    const String path(Wide(scratch.Path().string()).c_str());
    std::size_t files = 0;
    std::size_t number = 0;
    for (const Seed& seed : MutationSeeds()) {
        const Mutations mutations(seed.text);
        for (std::size_t i = 0; i < mutations.Count(); ++i) {
            if (number++ % share != 0) continue;
            scratch.Write(mutations.Apply(i));
            const auto reader = NewReader();
            (void)reader->Import(path.Get());
            (void)ReadEverything(*reader);
            ++files;
        }
    }
    return files;
}

}  // namespace
}  // namespace tamur::test

int main(int count, char** arguments)
{
    std::srand(static_cast<unsigned>(
        std::filesystem::file_time_type::clock::now().time_since_epoch().count()));
    const std::size_t share = count > 1 ? std::strtoul(arguments[1], nullptr, 10) : 20;
    const std::size_t files = tamur::test::Run(share == 0 ? 1 : share);
    std::printf("%zu changed models imported and read in full\n", files);
    return 0;
}
