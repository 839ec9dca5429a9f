# clang with the cross compiler's headers, for the linters: it reads the Windows-only files, it never links.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=include/c++
  OUTPUT_VARIABLE tamber_libstdcxx OUTPUT_STRIP_TRAILING_WHITESPACE)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
# clang does not find the posix flavour's library by itself.
set(CMAKE_CXX_FLAGS_INIT
  "-nostdinc++ -isystem ${tamber_libstdcxx} -isystem ${tamber_libstdcxx}/x86_64-w64-mingw32")
