// Owners of what COM hands out: counted references to objects, and text.
#pragma once

#include "vela/owned_win32.h"

#include <utility>

#include <objbase.h>

namespace vela {

template <typename Interface>
class ComPointer {
public:
    ComPointer() noexcept = default;
    // A reference of its own to an object that somebody else holds too.
    explicit ComPointer(Interface* object) noexcept : object_(object)
    {
        if (object_)
            object_->AddRef();
    }
    ComPointer(const ComPointer& other) noexcept : ComPointer(other.object_) {}
    ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComPointer& operator=(const ComPointer& other) noexcept { return *this = ComPointer(other); }
    ComPointer& operator=(ComPointer&& other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPointer() { reset(); }

    explicit operator bool() const noexcept { return object_ != nullptr; }
    Interface* get() const noexcept { return object_; }
    Interface* operator->() const noexcept { return object_; }

    void reset() noexcept
    {
        if (Interface* const old = std::exchange(object_, nullptr))
            old->Release();
    }

    // The address for a call that stores a reference there; what was held is let go first.
    Interface** put() noexcept
    {
        reset();
        return &object_;
    }
    void** putVoid() noexcept { return reinterpret_cast<void**>(put()); }

    // Asks the object for another of its interfaces; the HRESULT of QueryInterface.
    template <typename Other>
    HRESULT queryTo(ComPointer<Other>& other) const noexcept
    {
        return object_->QueryInterface(__uuidof(Other), other.putVoid());
    }

private:
    Interface* object_ = nullptr;
};

// Text that COM or the shell allocated for its caller.
struct TaskMemoryTraits {
    using Handle = wchar_t*;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle memory) noexcept { ::CoTaskMemFree(memory); }
};
using OwnedTaskText = Owned<TaskMemoryTraits>;

} // namespace vela
