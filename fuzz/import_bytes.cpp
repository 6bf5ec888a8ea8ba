#include "import_bytes.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "support/read_everything.h"

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv);

namespace tamur::fuzz {
namespace {

int Ignore(const OLECHAR*, const OLECHAR*, UINT, void*)
{
    return 1;
}

// A file in memory with a path that can be opened.
class MemoryFile {
 public:
    MemoryFile() : descriptor_(memfd_create("model", MFD_CLOEXEC))
    {
        if (descriptor_ < 0) std::abort();
        TamurSetMessageBoxHandler(Ignore, nullptr);
    }

    void Write(std::string_view bytes) const
    {
        if (ftruncate(descriptor_, 0) != 0 || pwrite(descriptor_, bytes.data(), bytes.size(), 0) !=
                                                  static_cast<ssize_t>(bytes.size())) {
            std::abort();
        }
    }

    [[nodiscard]] std::u16string Path() const
    {
        const std::string path = "/proc/self/fd/" + std::to_string(descriptor_);
        return std::u16string(path.begin(), path.end());
    }

 private:
    int descriptor_;
};

}  // namespace

ComPtr<ITAMURStructureReader> NewReader()
{
    ComPtr<IClassFactory> factory;
    Check(DllGetClassObject(CLSID_TAMURStructureReader, IID_IClassFactory, factory.PutVoid()),
          "DllGetClassObject");
    ComPtr<ITAMURStructureReader> reader;
    Check(factory->CreateInstance(nullptr, IID_ITAMURStructureReader, reader.PutVoid()),
          "CreateInstance");
    return reader;
}

void ImportBytes(ITAMURStructureReader& reader, std::string_view bytes)
{
    static const MemoryFile file;
    static const String path(file.Path().c_str());
    file.Write(bytes);
    (void)reader.Import(path.Get());
    (void)test::ReadEverything(reader);
}

}  // namespace tamur::fuzz
