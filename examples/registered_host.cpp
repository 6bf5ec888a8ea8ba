// A C++ host of the registered component: imports a model file and says where its nodes are.
//
//     registered_host FILE
#include <tamur/ranges.h>

#include <cstdio>
#include <exception>
#include <filesystem>

namespace {

// COM on this thread, while it lives.
struct Apartment {
    Apartment()
    {
        tamur::Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), "CoInitializeEx");
    }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    ~Apartment() { CoUninitialize(); }
};

tamur::ComPtr<ITAMURStructureReader> CreateReader()
{
    CLSID classId = {};
    tamur::Check(CLSIDFromProgID(L"TAMURReader.TAMURStructureReader", &classId), "CLSIDFromProgID");
    tamur::ComPtr<ITAMURStructureReader> reader;
    tamur::Check(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_ITAMURStructureReader,
                                  reader.PutVoid()),
                 "CoCreateInstance");
    return reader;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: registered_host FILE\n");
        return 2;
    }
    try {
        const Apartment apartment;
        const auto reader = CreateReader();
        const tamur::String file(std::filesystem::path(argv[1]).c_str());
        // A file that cannot be imported has been reported in a message box.
        if (reader->Import(file.Get()) != S_OK) return 1;
        for (const auto& node : tamur::Nodes(*reader)) {
            const auto& point = node->Geometrie;
            std::printf("%d %g %g %g\n", static_cast<int>(node->identifier), point.x, point.y,
                        point.z);
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "registered_host: %s\n", error.what());
        return 1;
    }
}
