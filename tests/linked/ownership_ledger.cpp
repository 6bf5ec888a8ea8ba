#include "linked/ownership_ledger.h"

#include <unordered_map>

#include "linked/platform_memory.h"
#include "linked/stand_in.h"
#include "linked/watched_allocations.h"
#include "platform/platform.h"

namespace tamur::test {
namespace {

enum class Kind { kString, kBlock };

struct Books {
    std::unordered_map<const void*, Kind> alive;
    std::uint64_t made = 0;
    std::uint64_t wrongFrees = 0;
};

Books* books = nullptr;

constexpr std::size_t kSizeUnknown = 64;  // most are small

template <class Make>
auto Made(Kind kind, Make make) -> decltype(make())
{
    const bool may = kTaskMemoryIsMalloc || MayAllocate(kSizeUnknown);
    auto* const made = may ? make() : nullptr;
    if (made == nullptr) return made;
    if (!kTaskMemoryIsMalloc) NoteAllocated(kSizeUnknown);
    if (books != nullptr) {
        books->alive[made] = kind;
        ++books->made;
    }
    return made;
}

// False when it must not be freed.
bool Freed(Kind kind, const void* gone)
{
    if (gone == nullptr) return true;
    if (books != nullptr) {
        const auto entry = books->alive.find(gone);
        if (entry == books->alive.end() || entry->second != kind) {
            ++books->wrongFrees;
            return false;
        }
        books->alive.erase(entry);
    }
    if (!kTaskMemoryIsMalloc) NoteFreed(kSizeUnknown);
    return true;
}

}  // namespace

OwnershipLedger::OwnershipLedger()
{
    books = new Books;
}

OwnershipLedger::~OwnershipLedger()
{
    delete books;
    books = nullptr;
}

std::uint64_t OwnershipLedger::Made() const
{
    return books->made;
}

std::size_t OwnershipLedger::Alive() const
{
    return books->alive.size();
}

bool OwnershipLedger::IsAlive(const void* stringOrBlock) const
{
    return books->alive.contains(stringOrBlock);
}

std::uint64_t OwnershipLedger::WrongFrees() const
{
    return books->wrongFrees;
}

}  // namespace tamur::test

// ------------------------------------------------------------------ in place of the system's

using tamur::test::Freed;
using tamur::test::Kind;
using tamur::test::Made;

REAL_FUNCTION(SysAllocString)
REAL_FUNCTION(SysAllocStringLen)
REAL_FUNCTION(SysAllocStringByteLen)
REAL_FUNCTION(SysFreeString)
REAL_FUNCTION(CoTaskMemAlloc)
REAL_FUNCTION(CoTaskMemFree)

extern "C" {

BSTR STDAPICALLTYPE InPlaceOfSysAllocString(const OLECHAR* text)
{
    return Made(Kind::kString, [=] { return REAL(SysAllocString)(text); });
}
BSTR STDAPICALLTYPE InPlaceOfSysAllocStringLen(const OLECHAR* text, UINT length)
{
    return Made(Kind::kString, [=] { return REAL(SysAllocStringLen)(text, length); });
}
BSTR STDAPICALLTYPE InPlaceOfSysAllocStringByteLen(const char* bytes, UINT length)
{
    return Made(Kind::kString, [=] { return REAL(SysAllocStringByteLen)(bytes, length); });
}
void STDAPICALLTYPE InPlaceOfSysFreeString(BSTR text)
{
    if (Freed(Kind::kString, text)) REAL(SysFreeString)(text);
}
LPVOID STDAPICALLTYPE InPlaceOfCoTaskMemAlloc(decltype(sizeof 0) size)
{
    return Made(Kind::kBlock, [=] { return REAL(CoTaskMemAlloc)(size); });
}
void STDAPICALLTYPE InPlaceOfCoTaskMemFree(LPVOID block)
{
    if (Freed(Kind::kBlock, block)) REAL(CoTaskMemFree)(block);
}

}  // extern "C"

STAND_IN(SysAllocString)
STAND_IN(SysAllocStringLen)
STAND_IN(SysAllocStringByteLen)
STAND_IN(SysFreeString)
STAND_IN(CoTaskMemAlloc)
STAND_IN(CoTaskMemFree)
