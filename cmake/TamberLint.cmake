# The linters as tests. Each compile database has its own share: the native one the portable files, the
# Windows one the files that only Windows builds. Whatever the compiler warns of is reported with the rest.
find_program(TAMBER_RUN_CLANG_TIDY run-clang-tidy REQUIRED)
find_program(TAMBER_CPPCHECK cppcheck REQUIRED)
find_program(TAMBER_CLANG_FORMAT clang-format REQUIRED)

# clang-tidy takes its time for every file: in shares, so that other tests run beside them. Together the
# expressions match every folder.
set(controls "/vela/controls/")
set(render "/vela/render/")
set(theme "/vela/(?!controls/|render/)")
set(programs "/(app|tools|fuzz|resources)/")
foreach(share controls render theme programs)
  if(WIN32)
    set(name lint.clang-tidy-windows.${share})
    set(files "${${share}}.*_(win32|gdi|dwrite|d3d11)\\.cpp$")
  else()
    set(name lint.clang-tidy.${share})
    set(files "${${share}}")
  endif()
  add_test(NAME ${name} COMMAND ${TAMBER_RUN_CLANG_TIDY} -quiet -j 1 -p ${PROJECT_BINARY_DIR} ${files}
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  set_tests_properties(${name} PROPERTIES COST 1000 TIMEOUT 1800)
endforeach()

if(NOT WIN32)
  # The two suppressed messages are about cppcheck itself giving up on a function.
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/cppcheck)
  add_test(NAME lint.cppcheck COMMAND ${TAMBER_CPPCHECK} -q --error-exitcode=1 --inline-suppr
    --project=${PROJECT_BINARY_DIR}/compile_commands.json --cppcheck-build-dir=${PROJECT_BINARY_DIR}/cppcheck
    --enable=warning,performance,portability --suppress=internalAstError --suppress=cppcheckError)
  set_tests_properties(lint.cppcheck PROPERTIES COST 1000 TIMEOUT 1800)
  add_test(NAME lint.rooms COMMAND ${PROJECT_SOURCE_DIR}/scripts/lint-rooms)
  add_test(NAME lint.clang-format COMMAND
    sh -c "git ls-files -co --exclude-standard '*.cpp' '*.h' | xargs ${TAMBER_CLANG_FORMAT} --dry-run -Werror"
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
endif()
