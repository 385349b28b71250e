// A home that has been used before, and a whole run of the program in it.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

enum class Store { settings, hive };

inline constexpr const char* kStoreFolder = "home/.config/zelvane";
std::string fileOf(Store store);
std::string setAsideFileOf(Store store);  // the first one
Store otherThan(Store store);

// A store in which every value that a visit stores is another one.
const std::string& soundContentOf(Store store);

// Both stores are there and sound, and in the places that a run cleans lies something.
class UsedHome {
 public:
  UsedHome();

  ThrowAwayFolder folder;

  std::string path(Store store) const { return folder / fileOf(store); }
  bool isClean() const;
  std::vector<std::string> leftovers() const;  // files of writers that did not come to their end
};

// What a user saw who started the program, clicked on an option, cleaned, and left.
struct Visit {
  std::vector<std::string> toldAtTheStart;
  std::vector<std::string> toldLater;
  std::string statusAfterTheLoad;
  std::string account;
  bool ended = false;
};

Visit visit(const UsedHome& home);
Visit visit(const UsedHome& home, const std::function<void()>& afterTheStart);
Visit shortVisit(const UsedHome& home);  // one who does not clean

// How many of a visit's saves tell when they fail: the time of the run and, at the exit, the
// startup box. A click on an option does not.
inline constexpr std::size_t kSavesThatTell = 2;

// The proofs. Each of them expects all that it says.

// The load came to its end, the run cleaned and told of it, the exit ended the program.
void expectThatTheProgramWorked(const Visit& seen, const UsedHome& home);
// What a visit stores in this store is there.
void expectThatAllWasStored(Store store, const UsedHome& home);
// Another visit tells nothing, stores everything and leaves nothing behind.
void expectThatAllIsWellAgain(const UsedHome& home);
// So many texts, each of which names the file or folder.
void expectTold(const std::vector<std::string>& told, std::size_t count, const std::string& path);

// The store was told of once and kept as it was under another name, and both stores work.
void expectSetAside(Store store, const std::string& content, const Visit& seen,
                    const UsedHome& home);
// The store was told of once; each save into it that tells said so again; the other store works.
void expectRefused(Store store, const Visit& seen, const UsedHome& home);

}  // namespace zelvane::test
