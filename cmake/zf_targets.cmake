# Helpers that give every target the same include root, precompiled headers and test registration.

# The standard headers that nearly every file needs, compiled once a target.
set(ZF_STANDARD_HEADERS <algorithm> <cstdint> <functional> <map> <memory> <optional> <string>
    <string_view> <unordered_map> <utility> <variant> <vector>)

# Common settings of a target: includes are written from the repository root.
function(zf_configure target)
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
  target_precompile_headers(${target} PRIVATE ${ZF_STANDARD_HEADERS})
endfunction()

# A big library whose files have no local names in common: built once as a whole under the sanitizers,
# several files are compiled together, which takes a third of the time.
function(zf_compile_together target)
  if(ZF_SANITIZE)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
  endif()
endfunction()

# zf_test(name LINKS libs... SOURCES files...): one GoogleTest program a folder, run by ctest.
function(zf_test name)
  cmake_parse_arguments(ARG "" "" "LINKS;SOURCES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  zf_configure(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name} PRIVATE <gtest/gtest.h>)
  # A test runs once a build: it shall compile soon.
  target_compile_options(${name} PRIVATE -O0)
  # Test data is found from the source tree.
  target_compile_definitions(${name} PRIVATE ZF_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
                             ZF_BINARY_DIR="${CMAKE_BINARY_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=1;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
