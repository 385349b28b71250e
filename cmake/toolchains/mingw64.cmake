# 64-bit Windows, by Debian's cross compiler with POSIX threads. Everything is linked in: the program
# runs without any DLL but those of Windows itself.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -static)

# Libraries and headers of Windows alone, never this system's; programs that run at build time are its.
# scripts/windows_libraries.sh makes those that the distribution has not for Windows.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
foreach(library IN ITEMS leveldb nlohmann-json3 snappy sqlite3)
  list(APPEND CMAKE_FIND_ROOT_PATH
       ${CMAKE_CURRENT_LIST_DIR}/../../build/windows-libraries/current/${library})
endforeach()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
