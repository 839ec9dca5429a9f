# The linters as tests. Each compile database has its own share: the native one the portable files, the
# Windows one the files that only Windows builds. Whatever the compiler warns of is reported with the rest.
find_program(TAMBER_RUN_CLANG_TIDY run-clang-tidy REQUIRED)
find_program(TAMBER_CPPCHECK cppcheck REQUIRED)
find_program(TAMBER_CLANG_FORMAT clang-format REQUIRED)

set(folders "/(app|vela|tools|fuzz|resources)/")
if(WIN32)
  add_test(NAME lint.clang-tidy-windows COMMAND ${TAMBER_RUN_CLANG_TIDY} -quiet -p ${PROJECT_BINARY_DIR}
    "${folders}.*_(win32|gdi|dwrite|d3d11)\\.cpp$" WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  set_tests_properties(lint.clang-tidy-windows PROPERTIES PROCESSORS 2 COST 1000 TIMEOUT 1800)
else()
  add_test(NAME lint.clang-tidy COMMAND ${TAMBER_RUN_CLANG_TIDY} -quiet -p ${PROJECT_BINARY_DIR}
    "${folders}" WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  # The two suppressed messages are about cppcheck itself giving up on a function.
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/cppcheck)
  add_test(NAME lint.cppcheck COMMAND ${TAMBER_CPPCHECK} -q -j 2 --error-exitcode=1 --inline-suppr
    --project=${PROJECT_BINARY_DIR}/compile_commands.json --cppcheck-build-dir=${PROJECT_BINARY_DIR}/cppcheck
    --enable=warning,performance,portability --suppress=internalAstError --suppress=cppcheckError)
  set_tests_properties(lint.clang-tidy lint.cppcheck PROPERTIES PROCESSORS 2 COST 1000 TIMEOUT 1800)
  add_test(NAME lint.clang-format COMMAND
    sh -c "git ls-files -co --exclude-standard '*.cpp' '*.h' | xargs ${TAMBER_CLANG_FORMAT} --dry-run -Werror"
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
endif()
