// Imports changed models, one after the other, and reads everything that came of each. There is
// nothing to compare with: that it ends, without a crash, a leak, too much memory or a word from a
// sanitizer, is the test. usage: changed_models_tests [SHARE [FIRST]]: takes every SHARE-th change
// (20) from that number (0) on.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "linked/memory_limit.h"
#include "linked/quiet_boxes.h"
#include "models/changes.h"
#include "support/scratch_file.h"
#include "models/seeds.h"
#include "support/component_under_test.h"
#include "support/read_everything.h"

namespace tamur::test {
namespace {

// The file that took most memory.
struct Greediest {
    std::int64_t bytes = 0;
    std::size_t fileSize = 0;
};

class Run {
 public:
    Run(std::size_t share, std::size_t first) : share_(share), next_(first) {}

    // False when a file broke a rule.
    bool TryAll()
    {
        for (const Seed& seed : Seeds()) {
            const Changes changes(seed.text);
            for (; next_ < before_ + changes.Count(); next_ += share_) {
                if (Try(changes.Apply(next_ - before_))) continue;
                std::printf("%s, change %zu: took too much memory or kept some\n",
                            seed.name.c_str(), next_ - before_);
                return false;
            }
            before_ += changes.Count();
        }
        return files_ != 0;
    }

    void PrintTotals() const
    {
        std::printf(
            "%zu changed models imported and read in full; the greediest import took %lld "
            "bytes for a file of %zu\n",
            files_, static_cast<long long>(greediest_.bytes), greediest_.fileSize);
    }

 private:
    bool Try(const std::string& text)
    {
        scratch_.Write(text);
        ++files_;
        const MemoryWatch memory;
        std::int64_t peak = 0;
        {
            const auto reader = NewReader();
            (void)reader->Import(path_.Get());
            peak = memory.PeakBytes();
            (void)ReadEverything(*reader);
        }
        if (peak > greediest_.bytes) greediest_ = {peak, text.size()};
        return peak <= MemoryLimit(text.size()) && memory.BlocksAlive() == 0;
    }

    const QuietBoxes boxes_;
    const ComPtr<ITAMURStructureReader> first_ = NewReader();  // keeps the class object
    const ScratchFile scratch_;
    const String path_{Wide(scratch_.Path().string()).c_str()};
    std::size_t share_;
    std::size_t next_;        // number of the next change, over all seeds
    std::size_t before_ = 0;  // changes of the seeds before
    std::size_t files_ = 0;
    Greediest greediest_;
};

}  // namespace
}  // namespace tamur::test

int main(int count, char** arguments)
{
    const auto argument = [&](int i, std::size_t otherwise) {
        return i < count ? std::strtoul(arguments[i], nullptr, 10) : otherwise;
    };
    tamur::test::Run run(std::max<std::size_t>(argument(1, 20), 1), argument(2, 0));
    const bool isFine = run.TryAll();
    run.PrintTotals();
    return isFine ? 0 : 1;
}
