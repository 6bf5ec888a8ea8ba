// Two model files, one after the other, into one reader. 0x1D parts them.
#include "import_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t parting = std::min(bytes.find('\x1D'), size);
    const auto reader = tamur::fuzz::NewReader();
    tamur::fuzz::ImportBytes(*reader, bytes.substr(0, parting));
    tamur::fuzz::ImportBytes(*reader, bytes.substr(std::min(parting + 1, size)));
    return 0;
}
