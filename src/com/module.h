// The module: what the library keeps for as long as it is loaded.
#pragma once

#include <atomic>
#include <mutex>

#include "platform/platform.h"

namespace tamur::com {

// One class that hosts can create. A null class identifier ends the map.
struct ObjectMapEntry {
    const CLSID* classId;
    HRESULT (*updateRegistry)(BOOL doRegister);
    HRESULT(*getClassObject)
    (HRESULT (*createInstance)(IUnknown*, REFIID, void**), REFIID riid, void** object);
    HRESULT (*createInstance)(IUnknown* outer, REFIID riid, void** object);
    std::atomic<IUnknown*> classObject;  // null until first asked for
    DWORD registrationCookie;            // for servers that run as a process
    const OLECHAR* (*description)();
    const void* (*categoryMap)();  // null: no component categories
    void (*objectMain)(bool starting);
};

class Module {
 public:
    void Init(ObjectMapEntry* map, REFGUID libraryId);
    void Term();

    // The objects that are alive, the class objects that hosts hold, and the hosts' own locks.
    LONG Lock() { return ++lockCount_; }
    LONG Unlock() { return --lockCount_; }
    [[nodiscard]] LONG LockCount() const { return lockCount_; }

    // Creates the class object when it is asked for the first time, under the one lock.
    HRESULT GetClassObject(REFCLSID classId, REFIID riid, void** object);

    // Calls `visit` for each entry in order until one fails; returns that result.
    template <class Visit>
    HRESULT ForEachEntry(Visit visit)
    {
        HRESULT result = S_OK;
        for (ObjectMapEntry* entry = map_;
             SUCCEEDED(result) && entry != nullptr && entry->classId != nullptr; ++entry) {
            result = visit(*entry);
        }
        return result;
    }

    [[nodiscard]] const GUID& LibraryId() const { return libraryId_; }

 private:
    std::atomic<LONG> lockCount_ = 0;
    std::mutex criticalSection_;
    ObjectMapEntry* map_ = nullptr;
    GUID libraryId_ = {};
};

// The module of this library.
Module& TheModule();

}  // namespace tamur::com
