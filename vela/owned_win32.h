// One owner for everything Windows hands out and wants back. A traits struct says what the handle is, which
// value means "none" and how it is given back; an alias gives the kind its name.
#pragma once

#include <utility>

#include <windows.h>

namespace vela {

template <typename Traits>
class Owned {
public:
    using Handle = typename Traits::Handle;

    Owned() noexcept = default;
    explicit Owned(Handle handle) noexcept : handle_(handle) {}
    Owned(Owned&& other) noexcept : handle_(other.release()) {}
    Owned& operator=(Owned&& other) noexcept
    {
        if (this != &other)
            reset(other.release());
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() { reset(); }

    explicit operator bool() const noexcept { return handle_ != Traits::empty(); }
    Handle get() const noexcept { return handle_; }
    Handle release() noexcept { return std::exchange(handle_, Traits::empty()); }

    // Keeps the caller's GetLastError: an owner often goes out of scope between a failed call and the reading
    // of its error.
    void reset(Handle handle = Traits::empty()) noexcept
    {
        const Handle old = std::exchange(handle_, handle);
        if (old == Traits::empty())
            return;
        const DWORD error = ::GetLastError();
        Traits::close(old);
        ::SetLastError(error);
    }

    // The address for a call that stores a handle there; what was held is given back first.
    Handle* put() noexcept
    {
        reset();
        return &handle_;
    }

private:
    Handle handle_ = Traits::empty();
};

// Processes, threads, mutexes, events: null means none.
struct KernelObjectTraits {
    using Handle = HANDLE;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle handle) noexcept { ::CloseHandle(handle); }
};
using OwnedKernelObject = Owned<KernelObjectTraits>;

// Files and process snapshots: here INVALID_HANDLE_VALUE means none.
struct FileTraits {
    using Handle = HANDLE;
    static Handle empty() noexcept { return INVALID_HANDLE_VALUE; }
    static void close(Handle handle) noexcept { ::CloseHandle(handle); }
};
using OwnedFile = Owned<FileTraits>;

struct LibraryTraits {
    using Handle = HMODULE;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle library) noexcept { ::FreeLibrary(library); }
};
using OwnedLibrary = Owned<LibraryTraits>;

struct IconTraits {
    using Handle = HICON;
    static Handle empty() noexcept { return nullptr; }
    static void close(Handle icon) noexcept { ::DestroyIcon(icon); }
};
using OwnedIcon = Owned<IconTraits>;

} // namespace vela
