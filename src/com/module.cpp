#include "com/module.h"

namespace tamur::com {

void Module::Init(ObjectMapEntry* map, REFGUID libraryId)
{
    // Where a lock takes memory when it is first taken, it takes it now and not when a host calls.
    const std::lock_guard lock(criticalSection_);
    map_ = map;
    libraryId_ = libraryId;
    ForEachEntry([](ObjectMapEntry& entry) {
        entry.objectMain(true);
        return S_OK;
    });
}

void Module::Term()
{
    ForEachEntry([](ObjectMapEntry& entry) {
        if (IUnknown* const classObject = entry.classObject.exchange(nullptr)) {
            classObject->Release();
        }
        entry.objectMain(false);
        return S_OK;
    });
    map_ = nullptr;
}

HRESULT Module::GetClassObject(REFCLSID classId, REFIID riid, void** object)
{
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    for (ObjectMapEntry* entry = map_; entry != nullptr && entry->classId != nullptr; ++entry) {
        if (entry->getClassObject == nullptr || !IsEqualGUID(*entry->classId, classId)) continue;
        if (entry->classObject == nullptr) {
            const std::lock_guard lock(criticalSection_);
            if (entry->classObject == nullptr) {
                void* created = nullptr;
                const HRESULT result =
                    entry->getClassObject(entry->createInstance, IID_IUnknown, &created);
                if (FAILED(result)) return result;
                entry->classObject = static_cast<IUnknown*>(created);
            }
        }
        return entry->classObject.load()->QueryInterface(riid, object);
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

Module& TheModule()
{
    static Module module;
    return module;
}

}  // namespace tamur::com
