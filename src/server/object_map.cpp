#include "server/object_map.h"

#include "TAMURReader.h"
#include "com/class_factory.h"
#include "com/object.h"
#include "component/accessor_classes.h"
#include "reader/structure_reader.h"
#include "server/registration.h"

namespace tamur {
namespace {

const OLECHAR* NoDescription()
{
    return nullptr;
}
const void* NoCategories()
{
    return nullptr;
}
void NothingToDo(bool) {}

template <unsigned scriptResource>
HRESULT UpdateRegistry(BOOL doRegister)
{
    return RunRegistryScript(scriptResource, doRegister);
}

}  // namespace

com::ObjectMapEntry theObjectMap[] = {
    {&CLSID_TAMURStructureReader, UpdateRegistry<13502>, com::CComClassFactory::Create,
     com::CreateInstance<CTAMURStructureReader>, nullptr, 0, NoDescription, NoCategories,
     NothingToDo},
    {&CLSID_TMRSurfaciqueAccessor, UpdateRegistry<13503>, com::CComClassFactory::Create,
     com::CreateInstance<CTMRSurfaciqueAccessor>, nullptr, 0, NoDescription, NoCategories,
     NothingToDo},
    {nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr, nullptr, nullptr},
};

}  // namespace tamur
