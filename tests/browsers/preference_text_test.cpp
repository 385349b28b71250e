#include "platform/shared/browsers/preference_text.h"

#include <gtest/gtest.h>

#include "platform/error.h"

namespace zelvane::test {
namespace {

using nlohmann::json;
using platform::PreferenceText;

TEST(PreferenceText, TextsNumbersAndSwitchesAreRead) {
  const PreferenceText text(
      "// Mozilla User Preferences\nuser_pref(\"a.text\", \"b\");\nuser_pref(\"a.number\", -7);\n"
      "user_pref(\"a.switch\", true);\n");

  EXPECT_EQ(text.find("a.text"), json("b"));
  EXPECT_EQ(text.find("a.number"), json(-7));
  EXPECT_EQ(text.find("a.switch"), json(true));
  EXPECT_EQ(text.find("a.other"), std::nullopt);
  EXPECT_FALSE(text.isDamaged());
}

TEST(PreferenceText, WhatAPersonWroteIsRead) {
  const PreferenceText text(
      "# mine\n/* user_pref(\"a\", 1); */ user_pref ( 'a' , 'it\\'s' ) ;user_pref(\"b\",+3);"
      "sticky_pref(\"c\", false); // user_pref(\"c\", true);");

  EXPECT_EQ(text.find("a"), json("it's"));
  EXPECT_EQ(text.find("b"), json(3));
  EXPECT_EQ(text.find("c"), json(false));
  EXPECT_FALSE(text.isDamaged());
}

TEST(PreferenceText, EscapedCharactersAreRead) {
  const PreferenceText text(R"(user_pref("a", "\"\\\n\x41\u00e9\u20ac\ud83d\ude00");)");

  EXPECT_EQ(text.find("a"), json("\"\\\nA\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80"));
}

TEST(PreferenceText, WhatIsSetIsReadBack) {
  const std::string hard = "a \"quoted\" \\ path\r\nend \xc3\xa9 \x01 ');//";
  PreferenceText text("");

  text.set("a", hard);

  EXPECT_EQ(PreferenceText(text.text()).find("a"), json(hard));
}

TEST(PreferenceText, AChangedValueLeavesEveryOtherByteAsItWas) {
  PreferenceText text("# \xff mine\nuser_pref( 'a' , 'old' ) ;  // here\nuser_pref(\"b\", 2)");

  text.set("a", "new");

  EXPECT_EQ(text.text(), "# \xff mine\nuser_pref( 'a' , \"new\" ) ;  // here\nuser_pref(\"b\", 2)");
}

TEST(PreferenceText, AllPreferencesOfTheNameAreChangedSinceTheLastOneCounts) {
  PreferenceText text("user_pref(\"a\", 1);\nuser_pref(\"a\", 22);\n");
  EXPECT_EQ(text.find("a"), json(22));

  text.set("a", 333);

  EXPECT_EQ(text.text(), "user_pref(\"a\", 333);\nuser_pref(\"a\", 333);\n");
}

TEST(PreferenceText, ANewOneHasALineOfItsOwnAtTheEnd) {
  PreferenceText text("user_pref(\"a\", 1);");
  PreferenceText ofWindows("user_pref(\"a\", 1);\r\n");

  text.set("b", false);
  ofWindows.set("b", false);

  EXPECT_EQ(text.text(), "user_pref(\"a\", 1);\nuser_pref(\"b\", false);\n");
  EXPECT_EQ(ofWindows.text(), "user_pref(\"a\", 1);\r\nuser_pref(\"b\", false);\r\n");
}

TEST(PreferenceText, WhatIsNoPreferenceIsPassedOverUpToTheNextOne) {
  const PreferenceText text("user_pref(\"a\", broken);\nuser_pref(\"b\", 2);");

  EXPECT_TRUE(text.isDamaged());
  EXPECT_EQ(text.find("a"), std::nullopt);
  EXPECT_EQ(text.find("b"), json(2));
}

TEST(PreferenceText, NoBeginningOfAFileIsTooShortToBeRead) {
  const std::string whole = R"(/* c */ user_pref("a", "\u00e9\ud83d\ude00"); user_pref('b', -1);)";
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const PreferenceText text(whole.substr(0, length));

    EXPECT_EQ(text.find("b"), std::nullopt) << length;
    EXPECT_EQ(text.text().size(), length);
  }
}

TEST(PreferenceText, ATextThatIsNoUtf8IsRefused) {
  PreferenceText text("");

  EXPECT_THROW(text.set("a", "\xff"), platform::Error);
  EXPECT_EQ(text.text(), "");
}

}  // namespace
}  // namespace zelvane::test
