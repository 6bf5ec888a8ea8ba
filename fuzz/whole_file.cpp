// Any bytes as a model file.
#include "import_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto reader = tamur::fuzz::NewReader();
    tamur::fuzz::ImportBytes(*reader, {reinterpret_cast<const char*>(data), size});
    return 0;
}
