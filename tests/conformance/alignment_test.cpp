// Hosts read what records point to as it is: text where a length of four bytes fits before it, and
// values where their type may lie.
#include <gtest/gtest.h>

#include <cstdint>

#include "models/every_table.h"

namespace tamur::test {
namespace {

class AlignmentChecker {
 public:
    template <class Value>
    void Field(const char* name, Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            Expect(name, value, alignof(std::uint32_t));
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        }
    }
    template <class Value>
    void Array(const char* name, Value* values, int count)
    {
        Expect(name, values, alignof(Value));
        if constexpr (std::is_same_v<Value, BSTR>) {
            for (int i = 0; i < count; ++i) Expect(name, values[i], alignof(std::uint32_t));
        }
    }

 private:
    static void Expect(const char* name, const void* place, std::size_t alignment)
    {
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(place) % alignment, 0u) << name;
    }
};

TEST(Alignment, OfEveryStringAndArrayFitsItsType)
{
    const auto reader = Imported(EveryTable());
    ForEachTable([&](const char* name, auto table) {
        SCOPED_TRACE(name);
        for (auto record : table(*reader)) VisitFields(record.Get(), AlignmentChecker());
    });
}

TEST(Alignment, OfStringsThatHostsMakeFitsTheirLength)
{
    for (const OLECHAR* const text : {OLESTR(""), OLESTR("a"), OLESTR("ab"), OLESTR("abc")}) {
        const BSTR string = SysAllocString(text);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(string) % alignof(std::uint32_t), 0u);
        SysFreeString(string);
    }
}

}  // namespace
}  // namespace tamur::test
