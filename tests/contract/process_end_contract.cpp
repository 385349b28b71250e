#include "tests/contract/process_end_contract.h"

#include <stdexcept>

#include "platform/error.h"

namespace zelvane::test {
namespace {

using platform::ProcessEnd;
using Say = ProcessEndBed::Say;

TEST_P(ProcessEndContract, NothingRunsAfterTheEnd) {
  const std::string said = bed->run([](ProcessEnd& process, const Say& say) {
    say("before");
    process.end();
    say("after");
  });

  EXPECT_EQ(said, "before\n");
}

TEST_P(ProcessEndContract, TheStatusIsZero) {
  bed->run([](ProcessEnd& process, const Say&) { process.end(); });

  EXPECT_EQ(bed->status(), 0);
}

TEST_P(ProcessEndContract, WhatCatchesTheProgramsErrorsDoesNotCatchTheEnd) {
  const std::string said = bed->run([](ProcessEnd& process, const Say& say) {
    try {
      process.end();
    } catch (const platform::Error&) {
      say("an error of the program");
    } catch (const std::exception&) {
      say("an error");
    }
    say("after");
  });

  EXPECT_EQ(said, "");
}

}  // namespace
}  // namespace zelvane::test
