// The accessors of a reader, one row each, for tests that hold for all of them.
#pragma once

#include <functional>
#include <vector>

#include "support/component_under_test.h"

namespace tamur::test {

struct AccessorKind {
    const char* name;  // of its interface
    const IID* id;
    std::function<HRESULT(ITAMURStructureReader&, IUnknown**)> get;
    bool supportsErrorInfo = false;

    [[nodiscard]] ComPtr<IUnknown> make(ITAMURStructureReader& reader) const
    {
        ComPtr<IUnknown> accessor;
        Check(get(reader, accessor.Put()), "getting an accessor");
        return accessor;
    }
};

// In the order in which the reader's interface has them.
inline const std::vector<AccessorKind>& AccessorKinds()
{
    static const std::vector<AccessorKind> kinds = [] {
        std::vector<AccessorKind> all;
        ForEachAccessor(
            [&]<class Accessor>(const char* name, REFIID id, AccessorGetter<Accessor> get) {
                all.push_back({name, &id,
                               [get](ITAMURStructureReader& reader, IUnknown** out) {
                                   Accessor* accessor = nullptr;
                                   const HRESULT result = (reader.*get)(&accessor);
                                   *out = accessor;
                                   return result;
                               },
                               IsOneOf<Accessor, ITMRSurfaciqueAccessor, ITMROuvertureAccessor,
                                       ITMRParoiAccessor>});
            });
        return all;
    }();
    return kinds;
}

}  // namespace tamur::test
