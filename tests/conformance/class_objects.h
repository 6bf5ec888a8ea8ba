// The class objects of the component, and how hosts create with them.
#pragma once

#include "support/component_under_test.h"

namespace tamur::test {

inline const CLSID* const kCreatableClasses[] = {&CLSID_TAMURStructureReader,
                                                 &CLSID_TMRSurfaciqueAccessor};

inline ComPtr<IClassFactory> ClassObject(REFCLSID classId)
{
    ComPtr<IClassFactory> factory;
    Check(TheComponent().GetClassObject(classId, IID_IClassFactory, factory.PutVoid()),
          "DllGetClassObject");
    return factory;
}

// A surface accessor without a reader.
inline ComPtr<ITMRSurfaciqueAccessor> NewSurfaceAccessor()
{
    ComPtr<ITMRSurfaciqueAccessor> accessor;
    Check(ClassObject(CLSID_TMRSurfaciqueAccessor)
              ->CreateInstance(nullptr, IID_ITMRSurfaciqueAccessor, accessor.PutVoid()),
          "CreateInstance");
    return accessor;
}

template <class Interface>
ComPtr<Interface> Ask(IUnknown& object, REFIID riid)
{
    ComPtr<Interface> answer;
    Check(object.QueryInterface(riid, answer.PutVoid()), "QueryInterface");
    return answer;
}

}  // namespace tamur::test
