// The one exception: a number and a description, as the common error report shows them.
#pragma once

#include <stdexcept>
#include <string>

namespace zelvane::platform {

// The numbers in use, each with the description that users of this family of programs know.
enum class ErrorNumber {
  overflow = 6,               // a number that does not fit into 16 bits
  outOfMemory = 7,            //
  typeMismatch = 13,          // a text that is no number, date or time
  internal = 51,              // a failure that nobody foresaw; its description is the library's own
  fileNotFound = 53,          //
  deviceIo = 57,              // a disk that refuses to read or write
  fileExists = 58,            //
  diskFull = 61,              //
  permissionDenied = 70,      // also: in use
  accessError = 75,           // a path that is a link, a folder in place of a file, or the reverse
  pathNotFound = 76,          //
  invalidPropertyValue = 380  // a control was given a value that it cannot show
};

// The usual description of a number, e.g. "File not found".
const char* description(ErrorNumber number);

class Error : public std::runtime_error {
 public:
  explicit Error(ErrorNumber number) : Error(number, description(number)) {}
  Error(ErrorNumber number, const std::string& text) : std::runtime_error(text), number_(number) {}

  ErrorNumber number() const { return number_; }
  std::string text() const { return what(); }

 private:
  ErrorNumber number_;
};

}  // namespace zelvane::platform
