// An interface of an aggregated part passes every question on and gives the outer object's own
// answer, whatever it is.
#include <gtest/gtest.h>

#include "conformance/class_objects.h"

namespace tamur::test {
namespace {

// Answers with what it is told to and remembers the question.
class AnsweringOuter final : public IUnknown {
 public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) noexcept override
    {
        asked = riid;
        *object = nullptr;
        return answer;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 17; }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return 16; }

    HRESULT answer = E_NOINTERFACE;
    IID asked = {};
};

TEST(AggregatedQueries, AreAnsweredByTheOuterObject)
{
    const std::pair<const CLSID*, const IID*> classes[] = {
        {&CLSID_TAMURStructureReader, &IID_ITAMURStructureReader},
        {&CLSID_TMRSurfaciqueAccessor, &IID_ITMRSurfaciqueAccessor}};
    for (const auto& [classId, interfaceId] : classes) {
        AnsweringOuter outer;
        ComPtr<IUnknown> inner;
        ASSERT_EQ(ClassObject(*classId)->CreateInstance(&outer, IID_IUnknown, inner.PutVoid()),
                  S_OK);
        const auto held = Ask<IUnknown>(*inner, *interfaceId);
        for (const HRESULT answer : {E_NOINTERFACE, S_OK, S_FALSE, E_FAIL}) {
            outer.answer = answer;
            void* found = &found;
            EXPECT_EQ(held->QueryInterface(IID_IClassFactory, &found), answer);
            EXPECT_TRUE(IsEqualIID(outer.asked, IID_IClassFactory));
            EXPECT_EQ(found, nullptr);
        }
        EXPECT_EQ(held->AddRef(), 17u);
        EXPECT_EQ(held->Release(), 16u);
    }
}

}  // namespace
}  // namespace tamur::test
