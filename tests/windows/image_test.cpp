// The DLL as the loader sees it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <vector>

#include "support/component_under_test.h"
#include "windows/paths.h"

namespace tamur::test {
namespace {

// A loaded library and the tables of its header.
class Image {
 public:
    explicit Image(const std::wstring& path) : module_(LoadLibraryW(path.c_str())) {}
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
    ~Image() { FreeLibrary(module_); }

    [[nodiscard]] const IMAGE_OPTIONAL_HEADER64& Header() const
    {
        const auto offset = static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew);
        return At<IMAGE_NT_HEADERS64>(offset)->OptionalHeader;
    }

    [[nodiscard]] std::vector<std::string> Exports() const
    {
        const auto* const table = At<IMAGE_EXPORT_DIRECTORY>(
            Header().DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress);
        EXPECT_EQ(table->NumberOfFunctions, table->NumberOfNames);
        std::vector<std::string> names;
        const auto* const addresses = At<DWORD>(table->AddressOfNames);
        for (DWORD i = 0; i < table->NumberOfNames; ++i) names.push_back(At<char>(addresses[i]));
        return names;
    }

    // The libraries that it needs, in lower case.
    [[nodiscard]] std::vector<std::string> Imports() const
    {
        std::vector<std::string> names;
        const auto* entry = At<IMAGE_IMPORT_DESCRIPTOR>(
            Header().DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
        for (; entry->Name != 0; ++entry) {
            std::string name = At<char>(entry->Name);
            std::transform(name.begin(), name.end(), name.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
            names.push_back(name);
        }
        return names;
    }

 private:
    template <class Type>
    const Type* At(DWORD offset) const
    {
        return reinterpret_cast<const Type*>(reinterpret_cast<ULONG_PTR>(module_) + offset);
    }

    HMODULE module_;
};

TEST(Image, ExportsTheFourFunctionsUndecorated)
{
    EXPECT_THAT(Image(ComponentPath()).Exports(),
                testing::UnorderedElementsAre("DllCanUnloadNow", "DllGetClassObject",
                                              "DllRegisterServer", "DllUnregisterServer"));
}

TEST(Image, NeedsLibrariesOfTheSystemOnly)
{
    EXPECT_THAT(Image(ComponentPath()).Imports(),
                testing::IsSubsetOf({"kernel32.dll", "msvcrt.dll", "ole32.dll", "oleaut32.dll",
                                     "user32.dll", "advapi32.dll"}));
}

TEST(Image, IsHardened)
{
    const Image image(ComponentPath());
    const WORD wanted = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE |
                        IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA |
                        IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
    EXPECT_EQ(image.Header().DllCharacteristics & wanted, wanted);
}

}  // namespace
}  // namespace tamur::test
