// The string and task memory functions of OLE Automation. Every allocation of them is a malloc.
#include <cstdlib>
#include <cstring>
#include <limits>

#include "platform/platform.h"

namespace {

// The length is in the four bytes before the text; eight keep the text 8-byte aligned.
constexpr std::size_t kPrefix = 8;

std::uint32_t& ByteLength(BSTR text)
{
    return *reinterpret_cast<std::uint32_t*>(reinterpret_cast<char*>(text) - sizeof(std::uint32_t));
}

// Copies between one and two pieces' worth of bytes: the first and the last, which may overlap.
template <class Piece>
void CopyEnds(char* to, const char* from, std::size_t size)
{
    Piece first, last;
    std::memcpy(&first, from, sizeof first);
    std::memcpy(&last, from + size - sizeof last, sizeof last);
    std::memcpy(to, &first, sizeof first);
    std::memcpy(to + size - sizeof last, &last, sizeof last);
}

// Most strings are short: a call for a few bytes would cost more than copying them.
void CopyBytes(char* to, const char* from, std::size_t size)
{
    if (size >= 8 && size <= 16) {
        CopyEnds<std::uint64_t>(to, from, size);
    } else if (size >= 4 && size < 8) {
        CopyEnds<std::uint32_t>(to, from, size);
    } else {
        std::memcpy(to, from, size);
    }
}

}  // namespace

BSTR SysAllocStringByteLen(const char* bytes, UINT byteLength)
{
    constexpr std::uint32_t kNul = 0;  // a whole NUL also after an odd length
    char* const block =
        static_cast<char*>(std::malloc(kPrefix + std::size_t{byteLength} + sizeof kNul));
    if (block == nullptr) return nullptr;
    char* const text = block + kPrefix;
    if (bytes != nullptr) CopyBytes(text, bytes, byteLength);
    std::memcpy(text + byteLength, &kNul, sizeof kNul);
    BSTR string = reinterpret_cast<BSTR>(text);
    ByteLength(string) = byteLength;
    return string;
}

BSTR SysAllocStringLen(const OLECHAR* text, UINT length)
{
    if (length > std::numeric_limits<UINT>::max() / sizeof(OLECHAR)) return nullptr;
    return SysAllocStringByteLen(reinterpret_cast<const char*>(text),
                                 static_cast<UINT>(length * sizeof(OLECHAR)));
}

BSTR SysAllocString(const OLECHAR* text)
{
    if (text == nullptr) return nullptr;
    const std::size_t length = std::char_traits<OLECHAR>::length(text);
    if (length > std::numeric_limits<UINT>::max()) return nullptr;
    return SysAllocStringLen(text, static_cast<UINT>(length));
}

UINT SysStringByteLen(BSTR text)
{
    return text == nullptr ? 0 : ByteLength(text);
}

UINT SysStringLen(BSTR text)
{
    return SysStringByteLen(text) / sizeof(OLECHAR);
}

void SysFreeString(BSTR text)
{
    if (text != nullptr) std::free(reinterpret_cast<char*>(text) - kPrefix);
}

LPVOID CoTaskMemAlloc(size_t size)
{
    return std::malloc(size == 0 ? 1 : size);
}

LPVOID CoTaskMemRealloc(LPVOID block, size_t size)
{
    if (block != nullptr && size == 0) {
        std::free(block);
        return nullptr;
    }
    return std::realloc(block, size == 0 ? 1 : size);
}

void CoTaskMemFree(LPVOID block)
{
    std::free(block);
}
