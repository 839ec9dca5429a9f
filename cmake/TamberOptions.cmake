# Compiler settings shared by every target, and the switches that choose what is built beside the product.

option(TAMBER_TESTS "Build the tests" ON)
option(TAMBER_BENCH "Build the benchmarks" OFF)
option(TAMBER_FUZZ "Build the libFuzzer targets (clang only)" OFF)
option(TAMBER_LINT "Add the linters as tests (clang only)" OFF)
option(TAMBER_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(tamber_settings INTERFACE)
target_include_directories(tamber_settings INTERFACE ${PROJECT_SOURCE_DIR})
# Paths in the binary would tell where it was built and make two builds of one source differ.
target_compile_options(tamber_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
  "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=" "-ffile-prefix-map=${PROJECT_BINARY_DIR}/=build/")

if(TAMBER_SANITIZE)
  target_compile_options(tamber_settings INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tamber_settings INTERFACE -fsanitize=address,undefined)
endif()

if(WIN32)
  # SSE2 only: GCC does not align the stack for AVX on Win64.
  target_compile_definitions(tamber_settings INTERFACE
    UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX WINVER=0x0A00 _WIN32_WINNT=0x0A00)
  target_compile_options(tamber_settings INTERFACE -ffunction-sections -fdata-sections)
  target_link_options(tamber_settings INTERFACE -static -Wl,--gc-sections -Wl,--no-insert-timestamp)
  # The product is optimised as a whole, which makes it a sixth smaller. Everything else links the ordinary code
  # in the same object files: it would take long, and only the product's size counts.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(tamber_settings INTERFACE $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<CONFIG:MinSizeRel>>:-flto -ffat-lto-objects>)
    target_link_options(tamber_settings INTERFACE $<$<NOT:$<BOOL:$<TARGET_PROPERTY:TAMBER_WHOLE_PROGRAM>>>:-fno-lto>)
  endif()
  # Warnings of the cross compiler's own headers are not ours to fix.
  set(CMAKE_CXX_USE_RESPONSE_FILE_FOR_INCLUDES OFF)
endif()

find_program(TAMBER_CCACHE ccache)
if(TAMBER_CCACHE)
  # Precompiled headers are part of the key as they are; ccache asks to be told that this is meant.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${TAMBER_CCACHE})
endif()
