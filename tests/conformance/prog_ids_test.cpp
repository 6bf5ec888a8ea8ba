// The names of the classes that hosts create.
#include <gtest/gtest.h>
#include <tamur/prog_ids.h>

#include "support/component_under_test.h"

namespace tamur::test {
namespace {

TEST(ProgIds, AreThoseOfTheReaderAndTheSurfaceAccessor)
{
    ASSERT_EQ(std::size(kProgIds), 2u);
    EXPECT_EQ(Utf8(kProgIds[0].name), "TAMURReader.TAMURStructureReader");
    EXPECT_EQ(Utf8(kProgIds[0].versioned), "TAMURReader.TAMURStructureReader.1");
    EXPECT_TRUE(IsEqualCLSID(*kProgIds[0].classId, CLSID_TAMURStructureReader));
    EXPECT_EQ(Utf8(kProgIds[1].name), "TAMURReader.TMRSurfaciqueAccessor");
    EXPECT_EQ(Utf8(kProgIds[1].versioned), "TAMURReader.TMRSurfaciqueAccessor.1");
    EXPECT_TRUE(IsEqualCLSID(*kProgIds[1].classId, CLSID_TMRSurfaciqueAccessor));
}

TEST(ProgIds, LeadToClassesThatCanBeCreated)
{
    for (const ProgId& progId : kProgIds) {
        for (const OLECHAR* name : {progId.name, progId.versioned}) {
            const CLSID* const classId = ClassOfProgId(name);
            ASSERT_NE(classId, nullptr) << Utf8(name);
            ComPtr<IClassFactory> factory;
            EXPECT_EQ(TheComponent().GetClassObject(*classId, IID_IClassFactory, factory.PutVoid()),
                      S_OK);
        }
    }
}

TEST(ProgIds, OfOtherClassesLeadNowhere)
{
    for (const OLECHAR* name :
         {OLESTR(""), OLESTR("TAMURReader"), OLESTR("TAMURReader.TMRMasseAccessor"),
          OLESTR("TAMURReader.TAMURStructureReader.2"),
          OLESTR("tamurreader.tamurstructurereader")}) {
        EXPECT_EQ(ClassOfProgId(name), nullptr) << Utf8(name);
    }
}

}  // namespace
}  // namespace tamur::test
