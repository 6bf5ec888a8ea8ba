// References to COM objects.
#pragma once

#include <utility>

namespace tamur {

// Holds one reference to an interface.
template <class Interface>
class ComPtr {
 public:
    ComPtr() = default;
    ComPtr(const ComPtr& other) : pointer_(other.pointer_)
    {
        if (pointer_ != nullptr) pointer_->AddRef();
    }
    ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept
    {
        std::swap(pointer_, other.pointer_);
        return *this;
    }
    ~ComPtr()
    {
        if (pointer_ != nullptr) pointer_->Release();
    }

    // Releases what is held; for out parameters.
    [[nodiscard]] Interface** Put()
    {
        *this = ComPtr();
        return &pointer_;
    }
    // The same for out parameters that any interface may be written to.
    [[nodiscard]] void** PutVoid() { return reinterpret_cast<void**>(Put()); }

    // Null when nothing is held. The reference stays this object's.
    [[nodiscard]] Interface* Get() const { return pointer_; }
    Interface* operator->() const { return pointer_; }
    Interface& operator*() const { return *pointer_; }
    explicit operator bool() const { return pointer_ != nullptr; }

 private:
    Interface* pointer_ = nullptr;
};

}  // namespace tamur
