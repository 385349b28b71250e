# zelvane_library(name [SOURCES file...] [DEPENDS target...] [PRIVATE target...] [HEADER target])
#
# The target of one folder. Without a .cpp file it is a library of headers only. DEPENDS are the
# folders (and libraries) that its headers show, PRIVATE the libraries that only its .cpp files use.
# HEADER owns the precompiled header, which is the standard library's otherwise.
# Files are included from the project's root: #include "platform/clock.h".
function(zelvane_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "HEADER" "SOURCES;DEPENDS;PRIVATE")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "zelvane_library(${name}): what is ${arg_UNPARSED_ARGUMENTS}?")
  endif()

  set(compiled ${arg_SOURCES})
  list(FILTER compiled INCLUDE REGEX "\\.cpp$")
  if(NOT compiled)
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} INTERFACE ${arg_DEPENDS})
    return()
  endif()

  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE ${arg_PRIVATE} zelvane_build_options)
  if(NOT arg_HEADER)
    set(arg_HEADER zelvane_standard_header)
  endif()
  target_precompile_headers(${name} REUSE_FROM ${arg_HEADER})

  # A static library may hold a call to anything: the program's last link, which has every folder at
  # hand, would resolve it. Linked alone with what it names, a folder shows any other arrow.
  if(ZELVANE_LINK_EACH_FOLDER)
    add_library(${name}_alone MODULE $<TARGET_OBJECTS:${name}>)
    set_target_properties(${name}_alone PROPERTIES LINKER_LANGUAGE CXX LIBRARY_OUTPUT_DIRECTORY
                                                   ${PROJECT_BINARY_DIR}/alone)
    target_link_libraries(${name}_alone PRIVATE ${arg_DEPENDS} ${arg_PRIVATE})
    target_link_options(${name}_alone PRIVATE -Wl,--no-undefined)
  endif()
endfunction()
