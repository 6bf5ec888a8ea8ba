// What the DLL carries besides code.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "support/component_under_test.h"
#include "windows/paths.h"

namespace tamur::test {
namespace {

struct Script {
    WORD resource;
    std::string progId;
    std::string description;
    std::string classId;
    bool isProgrammable;
};

// Carried with their irregularities: 13509 repeats 13503, 13510 has the name of 13506, and 13504 a
// class identifier of its own.
const Script kScripts[] = {
    {13502, "TAMURReader.TAMURStructureReader", "TAMURStructureReader Class",
     "{6A4EEDF9-1A86-4389-9730-27DFCE62D7BC}", true},
    {13503, "TAMURReader.TMRSurfaciqueAccessor", "TMRSurfaciqueAccessor Class",
     "{56797634-7040-4C19-8D2A-52EC1757E79F}", false},
    {13504, "TAMURReader.TMRMasseAccessor", "TMRMasseAccessor Class",
     "{EBEB08BD-8F28-447F-BA7F-C7A553E40E0A}", false},
    {13505, "TAMURReader.TMRCableAccessor", "TMRCableAccessor Class",
     "{AF633A54-C3AA-4492-B956-02F2E3878C66}", true},
    {13506, "TAMURReader.TMRLineAideAccessor", "TMRLineAideAccessor Class",
     "{2A652C09-59A5-4773-98A5-8F004191F1DB}", true},
    {13507, "TAMURReader.TMRDeplacementAccessor", "TMRDeplacementAccessor Class",
     "{B7D15417-B6C4-4690-B517-5BBF67423A05}", true},
    {13508, "TAMURReader.TMRParoiAccessor", "TMRParoiAccessor Class",
     "{9A35FD0B-FF7F-422A-B8A0-ABB9D2CA889E}", false},
    {13509, "TAMURReader.TMRSurfaciqueAccessor", "TMRSurfaciqueAccessor Class",
     "{56797634-7040-4C19-8D2A-52EC1757E79F}", false},
    {13510, "TAMURReader.TMRLineAideAccessor", "TMRLineAideAccessor Class",
     "{7BC8C31B-FCA0-404A-9B1C-5F59176638EA}", true},
    {13511, "TAMURReader.TMRSurfacicSectionAccessor", "TMRSurfacicSectionAccessor Class",
     "{4F870764-0A9D-4918-B346-E985480CAD2D}", true},
};

std::vector<std::string> Words(const std::string& text)
{
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

std::string ExpectedScript(const Script& script)
{
    const std::string versioned = script.progId + ".1";
    const std::string clsid = "CLSID = s '" + script.classId + "' ";
    const auto text = [](const std::string& value) { return " = s '" + value + "' "; };
    return "HKCR { " +                                                                    //
           versioned + text(script.description) + "{ " + clsid + "} " +                   //
           script.progId + text(script.description) + "{ " + clsid +                      //
           "CurVer" + text(versioned) + "} " +                                            //
           "NoRemove CLSID { ForceRemove " + script.classId + text(script.description) +  //
           "{ ProgID" + text(versioned) +                                                 //
           "VersionIndependentProgID" + text(script.progId) +                             //
           (script.isProgrammable ? "ForceRemove Programmable " : "") +                   //
           "InprocServer32 = s '%MODULE%' { val ThreadingModel = s 'Apartment' } " +      //
           "TypeLib = s '{0F595964-5B77-4763-98F2-DF16E0BACD22}' } } }";
}

BOOL CALLBACK NoteResource(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR numbers)
{
    reinterpret_cast<std::vector<int>*>(numbers)->push_back(
        static_cast<int>(reinterpret_cast<ULONG_PTR>(name)));
    return TRUE;
}

class Resources : public testing::Test {
 protected:
    Resources()
        : module_(LoadLibraryExW(ComponentPath().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE))
    {
    }
    ~Resources() override { FreeLibrary(module_); }

    [[nodiscard]] std::string Content(WORD number, LPCWSTR type) const
    {
        const HRSRC found = FindResourceW(module_, MAKEINTRESOURCEW(number), type);
        if (found == nullptr) return "no such resource";
        const void* const bytes = LockResource(LoadResource(module_, found));
        return {static_cast<const char*>(bytes), SizeofResource(module_, found)};
    }

    [[nodiscard]] std::vector<int> Numbers(LPCWSTR type) const
    {
        std::vector<int> numbers;
        EnumResourceNamesW(module_, type, NoteResource, reinterpret_cast<LONG_PTR>(&numbers));
        return numbers;
    }

    HMODULE module_;
};

TEST_F(Resources, RegistryScriptsAreTheTenWithTheirIrregularities)
{
    EXPECT_THAT(Numbers(L"REGISTRY"), testing::ElementsAre(13502, 13503, 13504, 13505, 13506, 13507,
                                                           13508, 13509, 13510, 13511));
    for (const Script& script : kScripts) {
        EXPECT_EQ(Words(Content(script.resource, L"REGISTRY")), Words(ExpectedScript(script)))
            << script.resource;
    }
    EXPECT_EQ(Content(13509, L"REGISTRY"), Content(13503, L"REGISTRY"));
}

TEST_F(Resources, TypeLibraryIsTheFirst)
{
    EXPECT_THAT(Numbers(L"TYPELIB"), testing::ElementsAre(1));
}

TEST_F(Resources, StringTableHoldsThePrompts)
{
    const std::string prompts[] = {
        "",
        "TAMURReader",
        "ATTENTION: Import Poids propre cas numéro %d impossible",
        "ATTENTION: Import Effet thermique cas numéro %d impossible",
        "Impossible d'ouvrir le fichier Tamur (%s).",
        "Importation Tamur Structure",
        "La version du fichier Tamur n'est pas correcte (< 10.1).",
        "",
    };
    UINT number = 13500;
    for (const std::string& prompt : prompts) {
        wchar_t text[200] = {};
        LoadStringW(module_, number++, text, static_cast<int>(std::size(text)));
        EXPECT_EQ(Utf8(WideStringView(text)), prompt);
    }
}

class VersionResource : public testing::Test {
 protected:
    VersionResource()
    {
        DWORD ignored = 0;
        block_.resize(GetFileVersionInfoSizeW(ComponentPath().c_str(), &ignored));
        GetFileVersionInfoW(ComponentPath().c_str(), 0, static_cast<DWORD>(block_.size()),
                            block_.data());
    }

    template <class Value>
    const Value* Get(const wchar_t* path)
    {
        void* value = nullptr;
        UINT size = 0;
        return VerQueryValueW(block_.data(), path, &value, &size) ? static_cast<Value*>(value)
                                                                  : nullptr;
    }

 private:
    std::vector<char> block_;
};

TEST_F(VersionResource, IsThatOfTheBuild)
{
    const auto* const fixed = Get<VS_FIXEDFILEINFO>(L"\\");
    ASSERT_NE(fixed, nullptr);
    const std::string version = std::to_string(HIWORD(fixed->dwFileVersionMS)) + "." +
                                std::to_string(LOWORD(fixed->dwFileVersionMS)) + "." +
                                std::to_string(HIWORD(fixed->dwFileVersionLS));
    EXPECT_EQ(version, TAMUR_EXPECTED_VERSION);
    EXPECT_EQ(fixed->dwFileType, DWORD{VFT_DLL});

    const auto* const translation = Get<WORD>(L"\\VarFileInfo\\Translation");
    ASSERT_NE(translation, nullptr);
    wchar_t strings[40] = {};
    swprintf(strings, std::size(strings), L"\\StringFileInfo\\%04X%04X\\", translation[0],
             translation[1]);
    const auto text = [&](const wchar_t* name) {
        const auto* const value = Get<wchar_t>((std::wstring(strings) + name).c_str());
        return value == nullptr ? "nothing" : Utf8(WideStringView(value));
    };
    EXPECT_EQ(text(L"OriginalFilename"), "TAMURReader.dll");
    EXPECT_EQ(text(L"ProductName"), "TAMUR Reader");
    EXPECT_EQ(text(L"FileVersion"), TAMUR_EXPECTED_VERSION);
}

}  // namespace
}  // namespace tamur::test
