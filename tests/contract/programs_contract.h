// What the port for other programs promises.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/programs.h"

namespace zelvane::test {

class ProgramsBed {
 public:
  virtual ~ProgramsBed() = default;

  virtual platform::Programs& programs() = 0;

  // A program for pages, files of a type that nobody else opens, comes to this desktop.
  virtual void install() = 0;

  // It goes again, and what it registered stays.
  virtual void spoil() = 0;

  // An existing page of that name, to which the type's extension is added.
  virtual std::string page(const std::string& name) = 0;

  // An existing file of a type without a program.
  virtual std::string stranger() = 0;

  // The argument with which the program was started last. Waits for that.
  virtual std::string argument() = 0;
};

using MakeProgramsBed = std::unique_ptr<ProgramsBed> (*)();

class ProgramsContract : public testing::TestWithParam<MakeProgramsBed> {
 protected:
  // The program for pages.
  std::string program() { return bed->programs().programFor(bed->page("page")).value(); }

  std::unique_ptr<ProgramsBed> bed = GetParam()();
};

}  // namespace zelvane::test
