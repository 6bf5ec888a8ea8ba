// Any bytes as lines of elements of a model that is fine otherwise.
#include <string>

#include "import_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string head =
        "#Version\n14.1E\n#SP\n2\n#Espace\n2\n#Tolerance\n0.01\n#Rigide\n1\n"
        "#Groupes\n2 3 2 P Oui\n1 1 1 A O\n#Materiaux\nA 1 2 3 4 5\nB 1 2 3 4 5\n"
        "#Geometries\nR 1 2 3 4 5 6 7 8 9 10 11 2 S 0 0 1 0 5 6\n#Attaches\nE 0\nR 7 t g d\n"
        "#Cas\n1 G 1 G 0\n2 Q 1 Q 0\n3 Q 2 Q 0\n#Elements\n";
    const auto reader = tamur::fuzz::NewReader();
    tamur::fuzz::ImportBytes(*reader,
                             head + std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
