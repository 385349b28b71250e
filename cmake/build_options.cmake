# How every file of the project is compiled. Warnings become errors in the presets alone
# (CMAKE_COMPILE_WARNING_AS_ERROR), so that a packager's compiler is never stopped by one.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})

add_library(zelvane_build_options INTERFACE)
target_compile_options(
  zelvane_build_options
  INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
            -Woverloaded-virtual -Wold-style-cast -fstack-protector-strong)
target_compile_definitions(zelvane_build_options INTERFACE _GLIBCXX_ASSERTIONS)
# The wide functions of Windows, of a system from Windows 10 on. For every file, because a precompiled
# header serves only those who are compiled like it.
if(WIN32)
  add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
endif()

# Elsewhere the system brings what guards the stack; on Windows it is a library of the compiler's.
if(MINGW)
  target_link_options(zelvane_build_options INTERFACE -fstack-protector-strong)
endif()

# ccache must be told that a precompiled header, whose own time stamp changes, may still be the same.
find_program(ZELVANE_CCACHE ccache)
if(ZELVANE_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${ZELVANE_CCACHE})
endif()
