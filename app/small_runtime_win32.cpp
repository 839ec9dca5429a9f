// Parts of the C++ library that the finished file has in a smaller form. They go by the library's own names,
// which the linker then takes from here: CMakeLists.txt names the compiler versions that this is known to
// suit.
#include "app/run/exit_code.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cxxabi.h>
#include <exception>
#include <new>

#include <windows.h>

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cert-dcl58-cpp)

// What the library would do with an exception that nobody catches: name its type, with a demangler and the C
// library's formatting, 70 KB in all. hardenProcess sets the handler that counts.
namespace __gnu_cxx {
void __verbose_terminate_handler() { ::TerminateProcess(::GetCurrentProcess(), setup::kExitInstallFailed); }
} // namespace __gnu_cxx

// What containers call when they are asked for the impossible. The library's own throw exceptions that carry
// a text, with two kinds of strings and a random number generator behind it, 50 KB in all; here, whoever
// catches anything asks neither for type nor for text.
namespace std {
void __throw_bad_alloc() { throw bad_alloc(); }
void __throw_bad_array_new_length() { throw bad_alloc(); }
void __throw_bad_function_call() { throw exception(); }
void __throw_length_error(const char*) { throw exception(); }
void __throw_logic_error(const char*) { throw exception(); }
void __throw_out_of_range_fmt(const char*, ...) { throw exception(); }
} // namespace std

// The library does the rest with POSIX threads, which it makes from Windows' own with 30 KB of code. The
// program starts its threads itself, and what is needed here Windows has: a lock, a wait, a value per thread.
namespace std::chrono {
inline namespace _V2 {
steady_clock::time_point steady_clock::now() noexcept
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER count;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&count);
    const std::int64_t rest = count.QuadPart % frequency.QuadPart;
    return time_point(seconds(count.QuadPart / frequency.QuadPart) +
                      nanoseconds(rest * std::nano::den / frequency.QuadPart));
}
} // namespace _V2
} // namespace std::chrono

namespace {

// What the compiler puts beside a static object of a function; it looks at the first byte itself.
struct StaticGuard {
    std::uint8_t made;
    std::uint8_t beingMade;
};

SRWLOCK guardLock = SRWLOCK_INIT;
CONDITION_VARIABLE guardChanged = CONDITION_VARIABLE_INIT;

void endMaking(__cxxabiv1::__guard* guard, bool made) noexcept
{
    auto& state = *reinterpret_cast<StaticGuard*>(guard);
    ::AcquireSRWLockExclusive(&guardLock);
    __atomic_store_n(&state.made, made ? 1 : 0, __ATOMIC_RELEASE);
    state.beingMade = 0;
    ::ReleaseSRWLockExclusive(&guardLock);
    ::WakeAllConditionVariable(&guardChanged);
}

} // namespace

namespace __cxxabiv1 {

// The ABI's: the exceptions that a thread is handling, and how many it has thrown and not caught yet.
struct __cxa_eh_globals {
    void* caught;
    unsigned uncaught;
};

extern "C" {

int __cxa_guard_acquire(__guard* guard)
{
    auto& state = *reinterpret_cast<StaticGuard*>(guard);
    ::AcquireSRWLockExclusive(&guardLock);
    while (state.beingMade)
        ::SleepConditionVariableSRW(&guardChanged, &guardLock, INFINITE, 0);
    const bool ours = !state.made;
    state.beingMade = ours ? 1 : 0;
    ::ReleaseSRWLockExclusive(&guardLock);
    return ours ? 1 : 0;
}

void __cxa_guard_release(__guard* guard) noexcept { endMaking(guard, true); }

void __cxa_guard_abort(__guard* guard) noexcept { endMaking(guard, false); }

__cxa_eh_globals* __cxa_get_globals() noexcept
{
    static const DWORD slot = ::FlsAlloc(std::free);
    if (void* const known = ::FlsGetValue(slot))
        return static_cast<__cxa_eh_globals*>(known);
    auto* const made = static_cast<__cxa_eh_globals*>(std::calloc(1, sizeof(__cxa_eh_globals)));
    if (!made || !::FlsSetValue(slot, made))
        std::terminate();
    return made;
}

__cxa_eh_globals* __cxa_get_globals_fast() noexcept { return __cxa_get_globals(); }

} // extern "C"
} // namespace __cxxabiv1

// For programs that use another file's variables without saying so; the linker refuses to make this one such.
extern "C" void _pei386_runtime_relocator() {}

// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cert-dcl58-cpp)
