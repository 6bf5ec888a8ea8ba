// The accessors of a reader, one row each, for tests that hold for all of them.
#pragma once

#include <vector>

#include "support/component_under_test.h"

namespace tamur::test {

struct AccessorKind {
    const char* name;  // of its interface
    const IID* id;
    HRESULT (*get)(ITAMURStructureReader&, IUnknown**);
    bool supportsErrorInfo = false;

    [[nodiscard]] ComPtr<IUnknown> make(ITAMURStructureReader& reader) const
    {
        ComPtr<IUnknown> accessor;
        Check(get(reader, accessor.Put()), "getting an accessor");
        return accessor;
    }
};

template <class Accessor, AccessorGetter<Accessor> get>
HRESULT GetAsUnknown(ITAMURStructureReader& reader, IUnknown** out)
{
    Accessor* accessor = nullptr;
    const HRESULT result = (reader.*get)(&accessor);
    *out = accessor;
    return result;
}

// In the order in which the reader's interface has them.
inline const std::vector<AccessorKind>& AccessorKinds()
{
#define KIND(stem)                                      \
    "ITMR" #stem "Accessor", &IID_ITMR##stem##Accessor, \
        GetAsUnknown<ITMR##stem##Accessor, &ITAMURStructureReader::Get##stem##Accessor>
    static const std::vector<AccessorKind> kinds = {
        {KIND(Material)},        {KIND(Section)},
        {KIND(Attache)},         {KIND(Groupe)},
        {KIND(Filaire)},         {KIND(Surfacique), true},
        {KIND(Ouverture), true}, {KIND(Paroi), true},
        {KIND(AppuiPonctuel)},   {KIND(AppuiLineaire)},
        {KIND(AppuiSurfacique)}, {KIND(Cas)},
        {KIND(Charge)},          {KIND(Node)},
        {KIND(Message)},         {KIND(Masse)},
        {KIND(Cable)},           {KIND(LineAide)},
        {KIND(LineInterieur)},   {KIND(Deplacement)},
        {KIND(SurfacicSection)},
    };
#undef KIND
    return kinds;
}

}  // namespace tamur::test
