// The stream scanner against the standard's stream: the first byte of each eight chooses a type.
#include "import/scan/stream_scanner.h"

#include <cstdlib>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>

namespace {

template <class T>
void Compare(tamur::StreamScanner& scanner, std::istringstream& stream)
{
    T ours{}, theirs{};
    scanner >> ours;
    stream >> theirs;
    if (stream.fail() != scanner.Failed()) std::abort();
    if (!stream.fail() && std::memcmp(&ours, &theirs, sizeof ours) != 0) std::abort();
}

void CompareWords(tamur::StreamScanner& scanner, std::istringstream& stream)
{
    std::string_view ours;
    std::string theirs;
    scanner >> ours;
    stream >> theirs;
    if (stream.fail() != scanner.Failed() || ours != theirs) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t kTypes = 8;
    if (size < kTypes) return 0;
    std::string line(reinterpret_cast<const char*>(data) + kTypes, size - kTypes);
    line.resize(std::strlen(line.c_str()));  // a NUL ends a line
    std::istringstream stream(line);
    const std::size_t length = line.size();
    line.append(tamur::kScanPadding, '\0');
    tamur::StreamScanner scanner(line.c_str(), line.c_str() + length);
    for (std::size_t i = 0; !scanner.Failed(); i = (i + 1) % kTypes) {
        switch (data[i] % 6) {
            case 0: Compare<std::int32_t>(scanner, stream); break;
            case 1: Compare<std::uint32_t>(scanner, stream); break;
            case 2: Compare<std::uint16_t>(scanner, stream); break;
            case 3: Compare<double>(scanner, stream); break;
            case 4: Compare<char>(scanner, stream); break;
            default: CompareWords(scanner, stream); break;
        }
    }
    return 0;
}
