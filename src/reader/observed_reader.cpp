#include "reader/observed_reader.h"

#include "com/object.h"
#include "reader/structure_reader.h"

namespace tamur {

ComPtr<ITAMURStructureReader> NewObservedReader(ImportObserver& observer)
{
    ComPtr<ITAMURStructureReader> reader;
    auto* const created = new com::CComObject<CTAMURStructureReader>(observer);
    created->AddRef();
    *reader.Put() = created;
    return reader;
}

void ForgetObserver(ITAMURStructureReader& reader)
{
    static_cast<CTAMURStructureReader&>(reader).ForgetObserver();
}

const Model& ModelOf(const ITAMURStructureReader& reader)
{
    return static_cast<const CTAMURStructureReader&>(reader).TheModel();
}

}  // namespace tamur
