// Texts that hosts give back to TamurReleaseText.
#pragma once

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

namespace tamur::capi {

// A copy; throws std::bad_alloc.
inline char* TextForHost(const std::string& text)
{
    char* const copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (copy == nullptr) throw std::bad_alloc();
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

}  // namespace tamur::capi
