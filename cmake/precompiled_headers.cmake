# zelvane_header(name HEADERS header... [DEPENDS target...])
#
# Headers that are read once for many files, whose compiling was mostly reading them. A file includes
# what it needs all the same: clang-tidy reads it, and the package for Windows is built, without this.

set(ZELVANE_STANDARD_HEADERS
    <algorithm> <array> <chrono> <cstdint> <functional> <map> <memory> <optional> <span> <string>
    <string_view> <utility> <vector>)
set(ZELVANE_QT_HEADERS <QApplication> <QLabel> <QLineEdit> <QPointer> <QPushButton> <QVBoxLayout>)
set(ZELVANE_WINDOWS_HEADERS <winsock2.h> <windows.h> <commctrl.h>) # in an order that they ask for

file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/no_code.cpp CONTENT "") # left alone where it is there

function(zelvane_header name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;DEPENDS")
  add_library(${name} OBJECT ${PROJECT_BINARY_DIR}/no_code.cpp)
  target_link_libraries(${name} PRIVATE ${arg_DEPENDS} zelvane_build_options)
  target_precompile_headers(${name} PRIVATE ${ZELVANE_STANDARD_HEADERS} ${arg_HEADERS})
endfunction()

zelvane_header(zelvane_standard_header)
