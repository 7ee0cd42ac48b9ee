# Helpers that give every target the same include root, precompiled headers and test registration.

# The standard headers that nearly every file needs. While somebody edits, each target compiles them once
# with what else its files need; with ZF_TOGETHER a target has too few files for that, and they are
# compiled once for all libraries and once for all tests, which are optimised differently.
set(ZF_STANDARD_HEADERS <algorithm> <cstdint> <functional> <map> <memory> <optional> <string>
    <string_view> <unordered_map> <utility> <variant> <vector>)

# zf_headers(name headers...): headers that several targets with the same flags share.
function(zf_headers name)
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/${name}.cpp CONTENT "// Carries precompiled headers.\n")
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
  target_precompile_headers(${name} PRIVATE ${ZF_STANDARD_HEADERS} ${ARGN})
endfunction()

# The same for tests.
function(zf_test_headers name)
  zf_headers(${name} <gtest/gtest.h> ${ARGN})
  target_compile_options(${name} PRIVATE ${ZF_TEST_OPTIONS})
  target_link_libraries(${name} PRIVATE GTest::gtest)
endfunction()

# A test runs once a build: it shall compile soon.
set(ZF_TEST_OPTIONS -O0)
if(ZF_TOGETHER)
  # As those that need Qt are compiled; a program may be what a library has to be.
  list(APPEND ZF_TEST_OPTIONS -fPIC)
  if(NOT ZF_SANITIZE)
    # Nobody looks into these with a debugger; the sanitizers name lines.
    list(APPEND ZF_TEST_OPTIONS -g0)
  endif()
  zf_headers(zf_library_headers)
  zf_test_headers(zf_plain_test_headers)
  zf_test_headers(zf_driver_test_headers <nlohmann/json.hpp>)
endif()

# Common settings of a target: includes are written from the repository root. A target whose files need
# more headers than the standard ones names them after OWN_HEADERS.
function(zf_configure target)
  cmake_parse_arguments(ARG "" "" "OWN_HEADERS" ${ARGN})
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
  get_target_property(kind ${target} TYPE)
  if(ARG_OWN_HEADERS OR NOT ZF_TOGETHER)
    target_precompile_headers(${target} PRIVATE ${ZF_STANDARD_HEADERS} ${ARG_OWN_HEADERS})
  elseif(NOT kind STREQUAL "EXECUTABLE")
    target_precompile_headers(${target} REUSE_FROM zf_library_headers)
  endif()
  zf_compile_together(${target})
endfunction()

# The names that a source gives to things outside of functions and classes, as far as lines show them.
function(zf_names_given path out)
  file(STRINGS ${path} lines REGEX "^[A-Za-z[]")
  list(FILTER lines EXCLUDE REGEX "^(using )?namespace ")
  set(names "")
  foreach(line IN LISTS lines)
    if(line MATCHES "^(struct|class|enum class|enum) ([A-Za-z0-9_]+)")
      list(APPEND names ${CMAKE_MATCH_2})
    elseif(line MATCHES "^using ([A-Za-z0-9_]+) =")
      list(APPEND names ${CMAKE_MATCH_1})
    elseif(line MATCHES "^([^(=;{]*[ *&])([A-Za-z0-9_]+)(\\[[^]]*\\])* ?[(=;{]")
      list(APPEND names ${CMAKE_MATCH_2})
      if(line MATCHES "^constexpr [^(]+$") # double dots_an_inch = 96, points_an_inch = 72;
        string(REGEX MATCHALL ", [A-Za-z0-9_]+ =" further "${line}")
        string(REGEX REPLACE "[, =]" "" further "${further}")
        list(APPEND names ${further})
      endif()
    endif()
  endforeach()
  set(${out} ${names} PARENT_SCOPE)
endfunction()

# The first part of a folder in which nobody has given one of the names yet; they are taken there.
function(zf_part_without folder names out)
  foreach(number RANGE 1 99)
    set(part ${folder}_${number})
    set(free ${names})
    list(REMOVE_ITEM free "" ${taken_in_${part}})
    if("${free}" STREQUAL "${names}")
      break()
    endif()
  endforeach()
  set(taken_in_${part} ${taken_in_${part}} ${names} PARENT_SCOPE)
  set(${out} ${part} PARENT_SCOPE)
endfunction()

# With ZF_TOGETHER the files of a folder are compiled as one, which takes a third of the time: for
# continuous integration, where everything is compiled once. Files that give the same name to
# different things, as twins do, stand in different parts.
function(zf_compile_together target)
  if(NOT ZF_TOGETHER)
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  # What is local to one of the files is not known as local in the whole.
  target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  get_target_property(sources ${target} SOURCES)
  foreach(source ${sources})
    get_filename_component(path ${source} ABSOLUTE)
    cmake_path(IS_PREFIX CMAKE_BINARY_DIR ${path} generated)
    if(source MATCHES "\\.cpp$" AND NOT source MATCHES "^\\$<" AND NOT generated)
      cmake_path(RELATIVE_PATH path BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
      cmake_path(GET path PARENT_PATH folder)
      string(MAKE_C_IDENTIFIER ${folder} folder)
      zf_names_given(${CMAKE_SOURCE_DIR}/${path} names)
      zf_part_without(${folder} "${names}" part)
      set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${part})
    endif()
  endforeach()
endfunction()

# zf_test(name LINKS libs... SOURCES files...): one GoogleTest program a folder, run by ctest.
# WITH_DRIVER: its files speak with the driver. SECONDS: about how long it runs, from two on; the
# longest begins first.
function(zf_test name)
  cmake_parse_arguments(ARG "WITH_DRIVER" "SECONDS" "LINKS;SOURCES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
  if(NOT ZF_TOGETHER)
    target_precompile_headers(${name} PRIVATE ${ZF_STANDARD_HEADERS} <gtest/gtest.h>)
  elseif(ARG_WITH_DRIVER)
    target_precompile_headers(${name} REUSE_FROM zf_driver_test_headers)
  else()
    target_precompile_headers(${name} REUSE_FROM zf_plain_test_headers)
  endif()
  zf_compile_together(${name})
  target_compile_options(${name} PRIVATE ${ZF_TEST_OPTIONS})
  # Test data is found from the source tree.
  target_compile_definitions(${name} PRIVATE ZF_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
                             ZF_BINARY_DIR="${CMAKE_BINARY_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=1;UBSAN_OPTIONS=print_stacktrace=1")
  if(ARG_SECONDS)
    set_tests_properties(${name} PROPERTIES COST ${ARG_SECONDS})
  endif()
endfunction()
