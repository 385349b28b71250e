# zelvane_test(name SOURCES file... [DEPENDS target...] [HEADER target])
#
# A test program in <build>/tests; HEADER owns the precompiled header, which is GoogleTest's otherwise.
# Its tests are compiled into it and never into a static library: of those the linker drops what nobody
# calls, and nobody calls a test. A program that needs a main() of its own brings one.

# GoogleTest from the distribution's sources where they are, so that each compiler builds its own.
block()
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
  if(EXISTS /usr/src/googletest/CMakeLists.txt)
    add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  else()
    find_package(GTest REQUIRED GLOBAL)
  endif()
endblock()

# A precompiled header serves only those who are compiled like its owner, so all of them are compiled
# as if for a shared library; otherwise CMake gives programs another flag than it gives the owner.
# What is tested is optimized, the tests are not: that would take twice as long to compile.
add_library(zelvane_test_options INTERFACE)
target_compile_options(zelvane_test_options INTERFACE -fPIC -O0)
target_include_directories(zelvane_test_options INTERFACE ${PROJECT_SOURCE_DIR})
target_link_libraries(zelvane_test_options INTERFACE zelvane_build_options GTest::gtest)

# zelvane_test_header(name [HEADERS header...] [DEPENDS target...])
#
# GoogleTest's and these, for the tests that need them.
function(zelvane_test_header name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;DEPENDS")
  zelvane_header(${name} HEADERS <gtest/gtest.h> <filesystem> ${arg_HEADERS}
    DEPENDS zelvane_test_options ${arg_DEPENDS})
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
endfunction()

zelvane_test_header(zelvane_gtest_header)

function(zelvane_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "HEADER" "SOURCES;DEPENDS")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "zelvane_test(${name}): what is ${arg_UNPARSED_ARGUMENTS}?")
  endif()
  if(NOT arg_SOURCES)
    message(STATUS "${name}: no test files yet")
    return()
  endif()

  add_executable(${name} ${arg_SOURCES}
                 ${PROJECT_SOURCE_DIR}/tests/support/every_program/language.cpp)
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE OFF RUNTIME_OUTPUT_DIRECTORY
                                           ${PROJECT_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE zelvane_test_options zelvane_test_support ${arg_DEPENDS}
                                        GTest::gtest_main)
  if(NOT arg_HEADER)
    set(arg_HEADER zelvane_gtest_header)
  endif()
  target_precompile_headers(${name} REUSE_FROM ${arg_HEADER})
endfunction()
