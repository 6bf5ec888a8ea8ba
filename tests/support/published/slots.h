// The published slots of the interfaces, for looking up.
#pragma once

#include <cstddef>
#include <string_view>

namespace tamur::test {

struct PublishedSlot {
    std::string_view interfaceName;
    std::string_view method;
    std::size_t slot;
};

inline constexpr std::size_t kUnknownSlots = 3;  // QueryInterface, AddRef, Release

inline constexpr PublishedSlot kPublishedSlots[] = {
#define VTABLE(name, base, identifier)
#define METHOD(interfaceName, method, slot) {#interfaceName, #method, slot},
#include "support/published/interfaces.def"
#undef METHOD
#undef VTABLE
};

// How many slots the interface has, those of IUnknown included.
constexpr std::size_t SlotCount(std::string_view interfaceName)
{
    std::size_t count = kUnknownSlots;
    for (const PublishedSlot& one : kPublishedSlots) count += one.interfaceName == interfaceName;
    return count;
}

// The method's slot; a method that is not published does not compile.
consteval std::size_t SlotOf(std::string_view interfaceName, std::string_view method)
{
    for (const PublishedSlot& one : kPublishedSlots) {
        if (one.interfaceName == interfaceName && one.method == method) return one.slot;
    }
    throw "no such method";
}

}  // namespace tamur::test
