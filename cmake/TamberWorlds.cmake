# A file's name says which world it belongs to: names ending in _win32, _gdi, _dwrite or _d3d11 (before an
# optional _test) may include <windows.h> and are built for Windows only; everything else is built for both.
# The build reads the names, so no list of files can disagree with them.
set(TAMBER_WINDOWS_NAME "_(win32|gdi|dwrite|d3d11)(_test)?\\.cpp$")

# tamber_sources(OUT PORTABLE|WINDOWS GLOB...): the sources of one world, relative to the current folder.
function(tamber_sources out world)
  file(GLOB found CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${ARGN})
  if(world STREQUAL "PORTABLE")
    list(FILTER found EXCLUDE REGEX ${TAMBER_WINDOWS_NAME})
  else()
    list(FILTER found INCLUDE REGEX ${TAMBER_WINDOWS_NAME})
  endif()
  set(${out} ${found} PARENT_SCOPE)
endfunction()
