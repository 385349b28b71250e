// Names and links that programs stumble over.
#include <string>

#include "tests/desktop/windows/desktop_test.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

class OddPaths : public DesktopTest {
 protected:
  OddPaths() { makeFile(world / "outside/kept"); }

  // Erases the documents, whose account is to be that of any other documents.
  void eraseDocuments() {
    const auto account = clean({Option::myDocuments});
    EXPECT_EQ(account, accountOf({accountOf("Erasing My Documents Files", world.documents())}));
    EXPECT_TRUE(isThere(world.documents()));
    EXPECT_TRUE(isThere(world / "outside/kept"));
  }

  std::string document(const std::string& name) const { return world.documents() + "\\" + name; }
};

TEST_F(OddPaths, MoreThan260CharactersAreErased) {
  const std::string first = document(std::string(200, 'a'));
  makeFile(first + "\\" + std::string(200, 'b') + "\\" + std::string(200, 'c') + "\\file");

  eraseDocuments();

  EXPECT_FALSE(isThere(first));
}

TEST_F(OddPaths, NamesThatWindowsChangesOrTakesForDevicesAreErased) {
  for (const std::string name : {"dot.", "blank ", "con.txt", "nul", "COM1", "dots..."}) {
    makeFile(document(name));
    makeFile(document("folder of " + name + "\\" + name));
    makeFile(document(name + "x\\" + name));
  }
  makeFile(document("folder.\\file"));
  makeFile(document("aux\\file"));
  ASSERT_FALSE(world.files().empty());

  eraseDocuments();

  EXPECT_TRUE(world.files().empty());
}

TEST_F(OddPaths, NamesOfAnyLanguageAreErased) {
  for (const std::string name : {"größer", "Ελλάδα", "日本", "\xF0\x9F\xA7\xB9", "e\xCC\x81"}) {
    makeFile(document(name + "\\" + name));
  }

  eraseDocuments();

  EXPECT_TRUE(world.files().empty());
}

// Wine goes by paths and follows the links of the Unix below it by itself, so they are left alone.
TEST_F(OddPaths, UnderWineALoopOfUnixLinksIsLeftAndTheRestErased) {
  makeFile(document("folder\\file"));
  makeLink(document("folder\\up"), world.documents());
  makeLink(document("self"), document("self"));

  eraseDocuments();

  EXPECT_FALSE(isThere(document("folder\\file")));
  EXPECT_TRUE(isThere(document("folder\\up")));
}

TEST_F(OddPaths, UnderWineUnixLinksOutOfTheFolderAreLeftAndNeverEntered) {
  makeFile(document("file"));
  makeLink(document("link"), world / "outside");
  makeLink(document("folder link"), world / "outside/kept");

  eraseDocuments();

  EXPECT_FALSE(isThere(document("file")));
  EXPECT_TRUE(isThere(document("link")));
}

TEST_F(OddPaths, AFolderWhosePathIsTooLongIsToldOfWithoutAPathAndStays) {
  const std::string start = world / "";
  const std::string folder = start + std::string(255 - start.size(), 'a');
  makeFile(folder + "\\file");
  ThrowAwayWorld::nameFolder("Personal", folder);

  const auto account = clean({Option::myDocuments});

  EXPECT_EQ(account, accountOf({accountOf("Erasing My Documents Files", "")}));
  EXPECT_TRUE(isThere(folder + "\\file"));
}

}  // namespace
}  // namespace zelvane::test
