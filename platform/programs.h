// Which program opens files of a type, and starting it.
#pragma once

#include <optional>
#include <string>

#include "platform/port.h"

namespace zelvane::platform {

class Programs : public Port {
 public:
  // The program that this user's desktop opens a file of that name with, in the words that `start`
  // takes; nothing where there is none. The file exists. Its name alone tells its type, and with a
  // zero byte in it names none.
  virtual std::optional<std::string> programFor(const std::string& file) const = 0;

  // Whether what `programFor` answers is the path of an executable whose name ends in ".EXE", which
  // more may follow.
  virtual bool executablesHaveSuffix() const = 0;

  // Starts the program with that one argument, whatever is in it, and does not wait for it. Its
  // window is shown without being given the keyboard. False where it cannot be started, as with a
  // zero byte in the argument.
  virtual bool start(const std::string& program, const std::string& argument) = 0;
};

}  // namespace zelvane::platform
