// The type library in the DLL against the published contract.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "support/published/slots.h"
#include "windows/type_description.h"

namespace tamur::test {
namespace {

using testing::ElementsAreArray;

struct Named {
    std::string type;
    std::string name;
    std::string what;  // a field's type, a method's or class's interface, an identifier
    LONG number;       // a size, an offset, a value

    friend bool operator==(const Named&, const Named&) = default;
    friend void PrintTo(const Named& one, std::ostream* out)
    {
        *out << one.type << '.' << one.name << ' ' << one.what << ' ' << one.number;
    }
};

constexpr LONG kPointer = sizeof(void*);

class TypeLibrary : public testing::Test {
 protected:
    template <class Visit>
    void ForEachType(TYPEKIND kind, Visit visit)
    {
        for (UINT i = 0; i < library_->GetTypeInfoCount(); ++i) {
            const TypeDescription type(*library_, i);
            if (type->typekind == kind) visit(type);
        }
    }

    ComPtr<ITypeLib> library_ = LoadTypeLibrary(ComponentPath());
};

TEST_F(TypeLibrary, IsForSixtyFourBitsAndHasItsIdentifierAndVersion)
{
    TLIBATTR* attributes = nullptr;
    Check(library_->GetLibAttr(&attributes), "GetLibAttr");
    EXPECT_TRUE(IsEqualGUID(attributes->guid, LIBID_TAMURREADERLib));
    EXPECT_EQ(attributes->syskind, SYS_WIN64);
    EXPECT_EQ(attributes->wMajorVerNum, 1);
    EXPECT_EQ(attributes->wMinorVerNum, 0);
    EXPECT_EQ(attributes->lcid, 0u);
    library_->ReleaseTLibAttr(attributes);
    EXPECT_EQ(LibraryName(*library_), "TAMURREADERLib");
}

TEST_F(TypeLibrary, HoldsTheRecordsInOrderWithTheirSizes)
{
    const std::vector<Named> published = {
#define RECORD(record, size) {#record, "", "", size},
#define FIELD(record, field, type, offset)
#include "support/published/records.def"
#undef FIELD
#undef RECORD
    };
    std::vector<Named> found;
    ForEachType(TKIND_RECORD, [&](const TypeDescription& type) {
        found.push_back({type.Name(), "", "", static_cast<LONG>(type->cbSizeInstance)});
    });
    EXPECT_THAT(found, testing::UnorderedElementsAreArray(published));
}

TEST_F(TypeLibrary, HoldsEveryFieldInItsOrderWithItsTypeAndOffset)
{
    std::map<std::string, std::vector<Named>> published;
#define RECORD(record, size)
#define FIELD(record, field, type, offset) \
    published[#record].push_back({#record, #field, #type, offset});
#include "support/published/records.def"
#undef FIELD
#undef RECORD
    ForEachType(TKIND_RECORD, [&](const TypeDescription& type) {
        std::vector<Named> found;
        for (UINT i = 0; i < type->cVars; ++i) {
            const auto field = type.Variable(i);
            found.push_back(
                {type.Name(), field.name, field.type, static_cast<LONG>(field.description->oInst)});
        }
        EXPECT_THAT(found, ElementsAreArray(published[type.Name()]));
    });
}

TEST_F(TypeLibrary, HoldsTheEnumerationsWithTheirValues)
{
    std::map<std::string, std::vector<Named>> published;
#define ENUMERATION(enumeration)
#define ENUMERATOR(enumeration, name, value) \
    published[#enumeration].push_back({#enumeration, #name, "", value});
#include "support/published/enumerations.def"
#undef ENUMERATOR
#undef ENUMERATION
    std::map<std::string, std::vector<Named>> found;
    ForEachType(TKIND_ENUM, [&](const TypeDescription& type) {
        for (UINT i = 0; i < type->cVars; ++i) {
            const auto constant = type.Variable(i);
            found[type.Name()].push_back(
                {type.Name(), constant.name, "", constant.description->lpvarValue->lVal});
        }
    });
    EXPECT_EQ(found, published);
}

TEST_F(TypeLibrary, HoldsTheInterfacesWithTheirBasesAndIdentifiers)
{
    const std::vector<Named> published = {
#define VTABLE(interfaceName, base, identifier) {#interfaceName, #base, identifier, 0},
#define METHOD(interfaceName, method, slot)
#include "support/published/interfaces.def"
#undef METHOD
#undef VTABLE
    };
    std::vector<Named> found;
    ForEachType(TKIND_INTERFACE, [&](const TypeDescription& type) {
        found.push_back({type.Name(), type.Referenced(0).Name(), type.Identifier(), 0});
        EXPECT_EQ(type->cbSizeVft, kPointer * static_cast<LONG>(SlotCount(type.Name())));
        EXPECT_EQ(type.Help(), type.Name() + " Interface");
    });
    EXPECT_THAT(found, testing::UnorderedElementsAreArray(published));
}

TEST_F(TypeLibrary, HoldsEveryMethodInItsSlot)
{
    std::map<std::string, std::vector<Named>> published;
#define VTABLE(interfaceName, base, identifier)
#define METHOD(interfaceName, method, slot) \
    published[#interfaceName].push_back({#interfaceName, #method, "HRESULT", (slot)*kPointer});
#include "support/published/interfaces.def"
#undef METHOD
#undef VTABLE
    ForEachType(TKIND_INTERFACE, [&](const TypeDescription& type) {
        std::vector<Named> found;
        for (UINT i = 0; i < type->cFuncs; ++i) {
            const auto method = type.Function(i);
            found.push_back({type.Name(), method.name, method.type, method.description->oVft});
            EXPECT_EQ(method.description->callconv, CC_STDCALL);
        }
        EXPECT_THAT(found, ElementsAreArray(published[type.Name()]));
    });
}

// Every method that fills a record or a text by rank gives it back as its result.
TEST_F(TypeLibrary, RankMethodsReturnTheirRecord)
{
    int methods = 0;
    ForEachType(TKIND_INTERFACE, [&](const TypeDescription& type) {
        for (UINT i = 0; i < type->cFuncs; ++i) {
            const auto method = type.Function(i);
            if (!method.name.ends_with("AtRank")) continue;
            ++methods;
            const FUNCDESC& description = *method.description;
            ASSERT_EQ(description.cParams, 2) << method.name;
            EXPECT_EQ(description.lprgelemdescParam[1].paramdesc.wParamFlags,
                      PARAMFLAG_FOUT | PARAMFLAG_FRETVAL)
                << method.name;
        }
    });
    EXPECT_EQ(methods, 28);
}

TEST_F(TypeLibrary, HoldsTheElevenClassesWithTheirHelp)
{
    const std::vector<std::vector<std::string>> published = {
#define COCLASS(name, identifier, interfaceName, help) {#name, identifier, #interfaceName, help},
#include "support/published/coclasses.def"
#undef COCLASS
    };
    std::vector<std::vector<std::string>> found;
    ForEachType(TKIND_COCLASS, [&](const TypeDescription& type) {
        EXPECT_EQ(type->cImplTypes, 1);
        EXPECT_NE(type->wTypeFlags & TYPEFLAG_FCANCREATE, 0);
        found.push_back({type.Name(), type.Identifier(), type.Referenced(0).Name(), type.Help()});
    });
    EXPECT_EQ(found.size(), 11u);
    EXPECT_THAT(found, testing::UnorderedElementsAreArray(published));
}

TEST_F(TypeLibrary, HoldsNothingElse)
{
    for (UINT i = 0; i < library_->GetTypeInfoCount(); ++i) {
        const TypeDescription type(*library_, i);
        EXPECT_THAT(type->typekind,
                    testing::AnyOf(TKIND_RECORD, TKIND_ENUM, TKIND_INTERFACE, TKIND_COCLASS))
            << type.Name();
    }
}

}  // namespace
}  // namespace tamur::test
