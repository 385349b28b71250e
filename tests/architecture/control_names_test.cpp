#include "tests/architecture/control_names.h"

#include <gtest/gtest.h>

namespace zelvane::architecture {

TEST(ControlNames, ASecondSpellingInAnotherFileIsReported) {
  EXPECT_EQ(list(controlNamesSpeltAgain({{"cleaner/a.h", "Button a{\"cmdApply\"};\n"},
                                         {"ui/qt/b.cpp", "\nfind(\"cmdApply\");\n"}})),
            "ui/qt/b.cpp:2: spells cmdApply again, after cleaner/a.h:1\n");
}

TEST(ControlNames, ASecondSpellingOnTheSameLineIsReported) {
  EXPECT_NE(list(controlNamesSpeltAgain({{"cleaner/a.h", "f(\"tmrDelay\", \"tmrDelay\");\n"}})),
            "");
}

TEST(ControlNames, DifferentNamesAreNotMixedUp) {
  EXPECT_EQ(list(controlNamesSpeltAgain({{"cleaner/a.h", "f(\"cmdApply\", \"cmdApplyAll\");\n"}})),
            "");
}

TEST(ControlNames, HandlersCommentsAndOtherTextsAreNoSpelling) {
  EXPECT_EQ(list(controlNamesSpeltAgain({{"cleaner/a.h",
                                          "f(\"cmdApply\");  // not \"cmdApply\"\n"
                                          "f(\"cmdApply_Click\"); f(\"Done\"); f(\"Done\");\n"
                                          "f(\"tables\"); f(\"tables\");\n"}})),
            "");
}

TEST(ControlNames, TestsMaySpellThem) {
  EXPECT_EQ(list(controlNamesSpeltAgain({{"cleaner/a.h", "f(\"cmdApply\");\n"},
                                         {"tests/unit/a_test.cpp", "f(\"cmdApply\");\n"}})),
            "");
}

}  // namespace zelvane::architecture
