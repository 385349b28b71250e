#include "tests/contract/programs_contract.h"

namespace zelvane::test {
namespace {

TEST_P(ProgramsContract, ATypeThatNobodyKnowsHasNoProgram) {
  bed->install();

  EXPECT_EQ(bed->programs().programFor(bed->stranger()), std::nullopt);
}

TEST_P(ProgramsContract, TheProgramOfATypeIsFoundWhateverTheFileIsCalled) {
  bed->install();

  for (const char* name : {"page", "a page.with.dots", "seite ö"}) {
    EXPECT_NE(bed->programs().programFor(bed->page(name)), std::nullopt) << name;
  }
}

TEST_P(ProgramsContract, AFileOfAZeroByteIsNone) {
  bed->install();

  EXPECT_EQ(bed->programs().programFor(bed->page("page") + std::string("\0.htm", 5)), std::nullopt);
}

TEST_P(ProgramsContract, TheProgramIsStartedWithTheAddressAsItsOneArgument) {
  bed->install();

  for (const char* address : {"https://www.zelvane.example/", "https://a.example/?q=a%20b&c=1#x",
                              "two words", "", "a;b|c&d>e<f", "$(touch x) `touch x` %TEMP% $HOME *",
                              "it's", "ö ä", "ends in a backslash\\x"}) {
    EXPECT_TRUE(bed->programs().start(program(), address)) << address;
    EXPECT_EQ(bed->argument(), address);
  }
}

TEST_P(ProgramsContract, ALongAddressIsNotCut) {
  bed->install();
  const std::string address(20'000, 'a');

  EXPECT_TRUE(bed->programs().start(program(), address));
  EXPECT_EQ(bed->argument(), address);
}

TEST_P(ProgramsContract, AProgramThatIsGoneIsNotStarted) {
  bed->install();
  const std::string gone = program();
  bed->spoil();

  EXPECT_FALSE(bed->programs().start(gone, "https://www.zelvane.example/"));
}

TEST_P(ProgramsContract, AnArgumentWithAZeroByteStartsNothing) {
  bed->install();

  EXPECT_FALSE(bed->programs().start(program(), std::string("a\0b", 3)));
}

}  // namespace
}  // namespace zelvane::test
