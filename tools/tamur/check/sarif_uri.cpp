#include "sarif_uri.h"

#include <algorithm>

namespace tamur::tool {
namespace {

bool IsAllowed(char c)
{
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return isLetter || (c >= '0' && c <= '9') ||
           std::string_view("-._~/!$&'()*+,;=@").find(c) != std::string_view::npos;
}

bool HasDrive(std::string_view path)
{
    return path.size() > 2 && path[1] == ':' && path[2] == '/';
}

}  // namespace

std::string SarifUriOf(std::string_view path)
{
    std::string slashed(path);
#ifdef _WIN32
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
#endif
    const bool hasDrive = HasDrive(slashed);
    std::string uri = hasDrive ? "file:///" : slashed.starts_with('/') ? "file://" : "";
    for (std::size_t i = 0; i < slashed.size(); ++i) {
        constexpr std::string_view kDigits = "0123456789ABCDEF";
        const auto byte = static_cast<unsigned char>(slashed[i]);
        if (IsAllowed(slashed[i]) || (hasDrive && i == 1)) {
            uri += slashed[i];
        } else {
            uri += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
        }
    }
    return uri;
}

}  // namespace tamur::tool
