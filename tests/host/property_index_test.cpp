// Records are found by all that they hold.
#include "host/structure/property_index.h"

#include <gmock/gmock.h>
#include <tamur/component.h>

namespace tamur::host {
namespace {

// Names of each length, and values in which some differ only.
struct Named {
    String name;
    TMRMaterial record = {};

    Named(int length, double modulus)
        : name(std::basic_string<OLECHAR>(static_cast<std::size_t>(length), OLECHAR{'x'}).c_str())
    {
        record.MaterialName = name.Get();
        record.E = modulus;
    }
};

Index Find(const PropertyIndex& index, int length, double modulus)
{
    Named named(length, modulus);
    return index.Find(named.record);
}

TEST(PropertyIndex, FindsTheFirstRecordOfTheSameContent)
{
    constexpr int kLengths = 20, kModuli = 50;
    PropertyIndex index;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < kLengths * kModuli; ++i) {
            Named named(i % kLengths, i / kLengths);
            index.Add(named.record);
        }
    }
    for (int i = 0; i < kLengths * kModuli; ++i) {
        EXPECT_EQ(Find(index, i % kLengths, i / kLengths), static_cast<Index>(i));
    }
    EXPECT_EQ(Find(index, kLengths, 0), kNone);
    EXPECT_EQ(Find(index, 0, 0.5), kNone);
}

}  // namespace
}  // namespace tamur::host
