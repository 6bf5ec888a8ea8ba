// Readers of their own in several threads, as hosts with one apartment a thread have them.
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

#include "models/every_table.h"
#include "support/read_everything.h"

namespace tamur::test {
namespace {

// Runs `work(thread)` in some threads that start together.
template <class Work>
void InThreads(std::size_t count, Work work)
{
    std::atomic<std::size_t> waiting = count;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < count; ++i) {
        threads.emplace_back([&, i] {
            --waiting;
            while (waiting != 0) std::this_thread::yield();
            work(i);
        });
    }
    for (std::thread& thread : threads) thread.join();
}

TEST(Threads, ReadersInSeveralThreadsDoNotDisturbEachOther)
{
    constexpr std::size_t kThreads = 4;
    constexpr int kRounds = 20;
    const std::array<std::string, 2> models = {
        EveryTable().Text(), EveryTable().Raw("1 8 0 1 0 4 5 6 0 0 0 3\n").Text()};
    const std::array<std::uint64_t, 2> expected = {ReadEverything(*Imported(models[0])),
                                                   ReadEverything(*Imported(models[1]))};
    ASSERT_NE(expected[0], expected[1]);

    std::array<int, kThreads> right = {};
    InThreads(kThreads, [&](std::size_t thread) {
        for (int i = 0; i < kRounds; ++i) {
            const auto reader = Imported(models[thread % 2]);
            if (ReadEverything(*reader) == expected[thread % 2]) ++right[thread];
        }
    });
    for (const int rounds : right) EXPECT_EQ(rounds, kRounds);
}

}  // namespace
}  // namespace tamur::test
