#include <gtest/gtest.h>

#include "support/accessor_kinds.h"
#include "conformance/class_objects.h"

namespace tamur::test {
namespace {

// An object that has ISupportErrorInfo speaks of its own interface, and of no other.
void ExpectErrorInfoOnlyFor(const IID& own, IUnknown& object)
{
    const auto support = Ask<ISupportErrorInfo>(object, IID_ISupportErrorInfo);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(own), S_OK);
    std::vector<const IID*> others = {&IID_IUnknown, &IID_IGenericAccessor, &IID_ISupportErrorInfo,
                                      &IID_IClassFactory, &IID_ITAMURStructureReader};
    for (const AccessorKind& kind : AccessorKinds()) others.push_back(kind.id);
    for (const IID* const other : others) {
        if (IsEqualIID(*other, own)) continue;
        EXPECT_EQ(support->InterfaceSupportsErrorInfo(*other), S_FALSE);
    }
}

TEST(ErrorInfo, ReaderSupportsItForItsInterface)
{
    ExpectErrorInfoOnlyFor(IID_ITAMURStructureReader, *NewReader());
}

TEST(ErrorInfo, SurfaceOpeningAndWallAccessorsSupportItForTheirInterfaces)
{
    const auto reader = NewReader();
    for (const AccessorKind& kind : AccessorKinds()) {
        if (kind.supportsErrorInfo) ExpectErrorInfoOnlyFor(*kind.id, *kind.make(*reader));
    }
    ExpectErrorInfoOnlyFor(IID_ITMRSurfaciqueAccessor, *NewSurfaceAccessor());
}

TEST(ErrorInfo, OtherAccessorsDoNotHaveIt)
{
    const auto reader = NewReader();
    for (const AccessorKind& kind : AccessorKinds()) {
        if (kind.supportsErrorInfo) continue;
        ComPtr<ISupportErrorInfo> support;
        EXPECT_EQ(kind.make(*reader)->QueryInterface(IID_ISupportErrorInfo, support.PutVoid()),
                  E_NOINTERFACE)
            << kind.name;
    }
}

}  // namespace
}  // namespace tamur::test
