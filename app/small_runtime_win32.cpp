// Parts of the C++ library that the finished file has in a smaller form. Programs that link the library's
// own, such as the tests, leave this file out.
#include "app/exit_code.h"

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

// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,cert-dcl58-cpp)
