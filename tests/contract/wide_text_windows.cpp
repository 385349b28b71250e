#include <string>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/windows/wide_text.h"

namespace zelvane::test {
namespace {

using platform::plainText;
using platform::wideText;
using namespace std::string_literals;

TEST(WideText, TextsOfEveryLengthOfCharacterComeBack) {
  const std::string text = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\xA7\xB9 \x7F\xDF\xBF\xEF\xBF\xBF"s;

  EXPECT_EQ(wideText(text), L"a\u00E4\u20AC\xD83E\xDDF9 \x7F\x07FF\xFFFF");
  EXPECT_EQ(plainText(wideText(text)), text);
}

TEST(WideText, HalvesOfPairsComeBackInAnyOrder) {
  const std::wstring wide = L"\xDC00x\xD800\xD800\xDC00\xD800";

  EXPECT_EQ(wideText(plainText(wide)), wide);
}

TEST(WideText, EachByteThatIsNoTextBecomesTheSignForThat) {
  EXPECT_EQ(wideText("a\xFFz"), L"a\xFFFDz");
  EXPECT_EQ(wideText("\xC3"), L"\xFFFD");
  EXPECT_EQ(wideText("\xC0\xAF"), L"\xFFFD\xFFFD");  // a slash in two bytes is no slash
  EXPECT_EQ(wideText("\xE0\x80\xAF"), L"\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(wideText("\xF4\x90\x80\x80"), L"\xFFFD\xFFFD\xFFFD\xFFFD");
}

TEST(WideText, ZeroBytesStayInATextAndAreRefusedInAName) {
  EXPECT_EQ(wideText("a\0b"s), L"a\0b"s);
  EXPECT_THROW(platform::wideName("a\0b"s), platform::Error);
  EXPECT_EQ(platform::wideName("a"), L"a");
}

}  // namespace
}  // namespace zelvane::test
