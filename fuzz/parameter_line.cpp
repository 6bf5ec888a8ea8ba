// Any bytes as lines of case parameters.
#include <string>

#include "import_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string head =
        "#Version\n14.1E\n#Espace\n2\n#Tolerance\n0.01\n#Rigide\n1\n"
        "#Cas\n1 G 1 G 0\n2 Q 1 Q 0\n3 M 3 M 0\n4 S 4 S 0\n9 E 9 E 0\n10 C 2 C 0\n11 C 2 C 0\n"
        "#TAB_PARAM_CAS\n";
    const auto reader = tamur::fuzz::NewReader();
    tamur::fuzz::ImportBytes(*reader,
                             head + std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
