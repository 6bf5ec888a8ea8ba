// A process without any memory whose first call of the component is the one that is tried.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

#include "TAMURReader.h"
#include "linked/memory_watch.h"
#include "platform/platform.h"

namespace tamur::test {

inline constexpr int kAnswered = 0;
inline constexpr int kNothingFailed = 2;

// Ends the process and says how the call answered when that allocation of it failed.
template <class Call>
[[noreturn]] void CallFirst(Call call, std::uint64_t allocation, Failing how, HRESULT expected)
{
    HRESULT result = S_OK;
    bool hasFailed = false;
    {
        MemoryWatch memory(MemoryWatch::Thread::kAsItIs);
        memory.FailAt(allocation, how);
        result = call();
        memory.FailNoMore();
        hasFailed = memory.HasFailed();
    }
    std::_Exit(!hasFailed ? kNothingFailed : result == expected ? kAnswered : 1);
}

// Accepts a process that ended so, and tells whether anything failed in it.
struct Ended {
    bool* hasFailed;

    bool operator()(int status) const
    {
        *hasFailed = !testing::ExitedWithCode(kNothingFailed)(status);
        return !*hasFailed || testing::ExitedWithCode(kAnswered)(status);
    }
};

class FirstCallDeathTest : public testing::TestWithParam<Failing> {
 protected:
    // A new process for each call, not a copy of this one, which has called before.
    FirstCallDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
    ~FirstCallDeathTest() override { GTEST_FLAG_SET(death_test_style, "fast"); }

    // How many allocations of the call there are, each of which failed in a process of its own.
    template <class Call>
    std::uint64_t FailEachAllocationOf(Call call)
    {
        for (std::uint64_t i = 1;; ++i) {
            bool hasFailed = true;  // in the new process too, which passes over the calls before
            EXPECT_EXIT(CallFirst(call, i, GetParam(), E_OUTOFMEMORY), Ended{&hasFailed}, "") << i;
            if (!hasFailed || HasFailure()) return i - 1;
        }
    }
};

}  // namespace tamur::test
