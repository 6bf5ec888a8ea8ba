// Registration by the system's own program, seen from this process. The registry is shared, so
// every test leaves it without the component.
#include <gtest/gtest.h>
#include <tamur/prog_ids.h>

#include "support/component_under_test.h"
#include "windows/paths.h"
#include "windows/process.h"
#include "windows/registry.h"

namespace tamur::test {
namespace {

constexpr wchar_t kLibraryKey[] = L"TypeLib\\{0F595964-5B77-4763-98F2-DF16E0BACD22}";

struct RegisteredClass {
    const wchar_t* progId;
    const wchar_t* description;
    const wchar_t* classId;
    const CLSID* id;
    bool isProgrammable;

    [[nodiscard]] std::wstring Versioned() const { return std::wstring(progId) + L".1"; }
    [[nodiscard]] std::wstring Key() const { return std::wstring(L"CLSID\\") + classId; }
};

const RegisteredClass kClasses[] = {
    {L"TAMURReader.TAMURStructureReader", L"TAMURStructureReader Class",
     L"{6A4EEDF9-1A86-4389-9730-27DFCE62D7BC}", &CLSID_TAMURStructureReader, true},
    {L"TAMURReader.TMRSurfaciqueAccessor", L"TMRSurfaciqueAccessor Class",
     L"{56797634-7040-4C19-8D2A-52EC1757E79F}", &CLSID_TMRSurfaciqueAccessor, false},
};

DWORD Regsvr32(const wchar_t* options)
{
    return RunProgram(std::wstring(L"regsvr32 ") + options + L" \"" + ComponentPath() + L"\"");
}

class Registration : public testing::Test {
 protected:
    Registration()
    {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        EXPECT_EQ(Regsvr32(L"/s"), 0u);
    }
    ~Registration() override
    {
        if (isRegistered_) Unregister();
        CoUninitialize();
    }

    void Unregister()
    {
        EXPECT_EQ(Regsvr32(L"/s /u"), 0u);
        isRegistered_ = false;
    }

 private:
    bool isRegistered_ = true;
};

TEST_F(Registration, WritesBothClassesWhole)
{
    for (const RegisteredClass& one : kClasses) {
        const std::wstring progId = one.progId;
        EXPECT_EQ(ClassValue(one.Versioned()), one.description);
        EXPECT_EQ(ClassValue(one.Versioned() + L"\\CLSID"), one.classId);
        EXPECT_EQ(ClassValue(progId), one.description);
        EXPECT_EQ(ClassValue(progId + L"\\CLSID"), one.classId);
        EXPECT_EQ(ClassValue(progId + L"\\CurVer"), one.Versioned());
        EXPECT_EQ(ClassValue(one.Key()), one.description);
        EXPECT_EQ(ClassValue(one.Key() + L"\\ProgID"), one.Versioned());
        EXPECT_EQ(ClassValue(one.Key() + L"\\VersionIndependentProgID"), progId);
        EXPECT_EQ(HasClassKey(one.Key() + L"\\Programmable"), one.isProgrammable);
        EXPECT_EQ(ClassValue(one.Key() + L"\\InprocServer32"), ComponentPath());
        EXPECT_EQ(ClassValue(one.Key() + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
        EXPECT_EQ(ClassValue(one.Key() + L"\\TypeLib"), L"{0F595964-5B77-4763-98F2-DF16E0BACD22}");
    }
}

TEST_F(Registration, NamesResolveToClasses)
{
    for (const RegisteredClass& one : kClasses) {
        for (const std::wstring& name : {std::wstring(one.progId), one.Versioned()}) {
            CLSID classId = {};
            EXPECT_EQ(CLSIDFromProgID(name.c_str(), &classId), S_OK);
            EXPECT_TRUE(IsEqualGUID(classId, *one.id));
        }
    }
}

TEST_F(Registration, NamesAreThoseThatHostsWithoutARegistryFind)
{
    for (const ProgId& progId : kProgIds) {
        for (const OLECHAR* name : {progId.name, progId.versioned}) {
            CLSID classId = {};
            EXPECT_EQ(CLSIDFromProgID(name, &classId), S_OK);
            EXPECT_TRUE(IsEqualGUID(classId, *ClassOfProgId(name)));
        }
    }
}

TEST_F(Registration, ClassesCanBeCreated)
{
    for (const RegisteredClass& one : kClasses) {
        ComPtr<IUnknown> object;
        EXPECT_EQ(CoCreateInstance(*one.id, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                   object.PutVoid()),
                  S_OK);
        EXPECT_TRUE(object);
    }
}

TEST_F(Registration, TypeLibraryIsFoundByItsIdentifier)
{
    ComPtr<ITypeLib> library;
    EXPECT_EQ(LoadRegTypeLib(LIBID_TAMURREADERLib, 1, 0, 0, library.Put()), S_OK);
    EXPECT_EQ(ClassValue(std::wstring(kLibraryKey) + L"\\1.0\\0\\win64"), ComponentPath());
}

TEST_F(Registration, OtherAccessorsAreNotThere)
{
    for (const wchar_t* const name :
         {L"TMRMaterialAccessor", L"TMROuvertureAccessor", L"TMRParoiAccessor", L"TMRMasseAccessor",
          L"TMRCableAccessor", L"TMRLineAideAccessor", L"TMRLineInterieurAccessor",
          L"TMRDeplacementAccessor", L"TMRSurfacicSectionAccessor"}) {
        const std::wstring progId = std::wstring(L"TAMURReader.") + name;
        EXPECT_FALSE(HasClassKey(progId)) << Utf8(progId);
        EXPECT_FALSE(HasClassKey(progId + L".1")) << Utf8(progId);
    }
#define COCLASS(name, identifier, interfaceName, help)                    \
    EXPECT_EQ(HasClassKey(L"CLSID\\" identifier),                         \
              IsEqualGUID(CLSID_##name, CLSID_TAMURStructureReader) ||    \
                  IsEqualGUID(CLSID_##name, CLSID_TMRSurfaciqueAccessor)) \
        << #name;
#include "support/published/coclasses.def"
#undef COCLASS
    // The mass accessor's identifier in the script that is carried but never run.
    EXPECT_FALSE(HasClassKey(L"CLSID\\{EBEB08BD-8F28-447F-BA7F-C7A553E40E0A}"));
}

TEST_F(Registration, CanBeRepeated)
{
    EXPECT_EQ(Regsvr32(L"/s"), 0u);
    EXPECT_EQ(ClassValue(L"TAMURReader.TAMURStructureReader\\CurVer"),
              L"TAMURReader.TAMURStructureReader.1");
}

TEST_F(Registration, ReplacesAClassKeyWhole)
{
    const std::wstring stale = kClasses[0].Key() + L"\\Stale";
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CLASSES_ROOT, stale.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key,
                    nullptr);
    RegCloseKey(key);
    EXPECT_EQ(Regsvr32(L"/s"), 0u);
    EXPECT_FALSE(HasClassKey(stale));
}

TEST_F(Registration, UnregisteringRemovesClassesAndTypeLibraryAndKeepsTheKeyOfAllClasses)
{
    Unregister();
    for (const RegisteredClass& one : kClasses) {
        EXPECT_FALSE(HasClassKey(one.progId));
        EXPECT_FALSE(HasClassKey(one.Versioned()));
        EXPECT_FALSE(HasClassKey(one.Key()));
    }
    EXPECT_FALSE(HasClassKey(kLibraryKey));
    EXPECT_TRUE(HasClassKey(L"CLSID"));
    ComPtr<IUnknown> object;
    EXPECT_EQ(CoCreateInstance(CLSID_TAMURStructureReader, nullptr, CLSCTX_INPROC_SERVER,
                               IID_IUnknown, object.PutVoid()),
              REGDB_E_CLASSNOTREG);
}

}  // namespace
}  // namespace tamur::test
