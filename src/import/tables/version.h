// File versions are texts, compared as bytes.
#pragma once

#include <cstring>
#include <string>
#include <string_view>

namespace tamur {

// Below 0, 0 or above 0 as the version is less than, equal to or greater than the literal: the
// unsigned bytes of the literal and its NUL decide, up to the first difference.
template <std::size_t N>
int CompareVersion(const std::string& version, const char (&literal)[N])
{
    return std::strncmp(version.c_str(), literal, N);
}

}  // namespace tamur
