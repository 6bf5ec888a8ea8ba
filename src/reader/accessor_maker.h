// How the reader makes its accessors.
#pragma once

#include <memory>
#include <utility>

#include "accessors/charge_accessor.h"
#include "accessors/message_accessor.h"
#include "accessors/node_accessor.h"
#include "com/guarded.h"
#include "com/object.h"
#include "component/accessor_classes.h"
#include "model/model.h"

namespace tamur {

// The accessors whose pointer is null when they cannot be made. The others leave it as it was.
template <class Interface>
inline constexpr bool kClearsPointer = false;
template <>
inline constexpr bool kClearsPointer<ITMRMaterialAccessor> = true;
template <>
inline constexpr bool kClearsPointer<ITMRCasAccessor> = true;
template <>
inline constexpr bool kClearsPointer<ITMRMessageAccessor> = true;

// The part of the reader below the methods that the contract names.
class AccessorMaker : public ITAMURStructureReader {
 protected:
    // Makes an accessor of that class over the model and gives the host its only reference.
    template <class Class, class Interface>
    HRESULT Make(Interface** out) noexcept
    {
        if constexpr (kClearsPointer<Interface>) *out = nullptr;
        return com::Guarded([&] {
            auto accessor = std::make_unique<com::CComObject<Class>>(std::as_const(model_));
            accessor->AddRef();
            *out = accessor.release();
            return S_OK;
        });
    }

    Model model_;
};

}  // namespace tamur
