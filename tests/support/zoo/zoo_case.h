// The hostile worlds, each with what an erasure of its root may do to it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/zoo/manifest.h"
#include "tests/support/zoo/zoo_world.h"

namespace zelvane::test {

enum class Needs { nothing, mounts, permissions };  // permissions: which do not stop root

struct ZooCase {
  std::string name = {};   // UpperCamel
  std::string title = {};  // for people who do not read the code
  // What is to stay of what is below the root, as paths below the world: each with everything below
  // it and with the folders above it. What the world keeps comes to it.
  std::vector<std::string> stays = {};
  std::function<void(ZooWorld&)> build = {};
  Needs needs = Needs::nothing;
  // What may stay or go, and change; patterns in which "*" stands for any bytes. For races.
  std::vector<std::string> mayStay = {};
  std::string erased = "root";  // the root, as the eraser gets it behind the world's path
  bool refused = false;         // it is no folder: nothing goes
};

// A world after an erasure, compared with what had to become of it. Paths below the world.
struct Outcome {
  std::vector<std::string> lost;     // had to stay and is gone
  std::vector<std::string> changed;  // had to stay and is not what it was
  std::vector<std::string> left;     // had to go and is still there
  std::vector<std::string> added;    // was not there before

  bool isAsItShould() const;
};

// `kept`: what the world keeps beyond the case's own words.
Outcome outcomeOf(const ZooCase& zooCase, const std::vector<std::string>& kept,
                  const Manifest& before, const Manifest& after);

std::vector<ZooCase> linkCases();
std::vector<ZooCase> mountCases();
std::vector<ZooCase> nameCases();
std::vector<ZooCase> permissionCases();
std::vector<ZooCase> kindCases();
std::vector<ZooCase> inUseCases();
// `pairs`: how many names are swapped with links while they are erased.
std::vector<ZooCase> raceCases(int pairs);

ZooCase foldersSwappedForLinks(int pairs);
ZooCase filesSwappedForLinks(int pairs);
ZooCase folderThatGrows();

struct ZooGroup {
  std::string name;
  std::vector<ZooCase> cases;
};

std::vector<ZooGroup> wholeZoo(int pairs);

}  // namespace zelvane::test
