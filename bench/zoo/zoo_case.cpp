// Lets an eraser loose on one hostile world, and says what it did there:
//   zoo_case list                       a line for each: its name, what it needs, its group, the
//                                       name of the root in it, and its title, parted by tabs
//   zoo_case run CASE FOLDER COMMAND... builds the case in an empty folder and runs the command, in
//                                       which "@ROOT@" stands for the root that it is to erase
// A run prints how the command ended, and a line "WHAT <tab> KIND <tab> PATH" for each entry that
// did not become what Zelvane's rules make of it; WHAT is lost, changed, left or added, KIND folder
// or file. A line break in a path is printed as "?". Status 3: this system cannot build the case.
#include "tests/support/zoo/zoo_case.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace zelvane::test;  // NOLINT(google-build-using-namespace): this program is all of it

constexpr int kPairs = 10'000;  // of names that are swapped in a race

const char* wordFor(Needs needs) {
  switch (needs) {
    case Needs::nothing:
      return "nothing";
    case Needs::mounts:
      return "mounts";
    case Needs::permissions:
      return "permissions";
  }
  return "";
}

int list() {
  for (const ZooGroup& group : wholeZoo(kPairs)) {
    for (const ZooCase& zooCase : group.cases) {
      std::printf("%s\t%s\t%s\t%s\t%s\n", zooCase.name.c_str(), wordFor(zooCase.needs),
                  group.name.c_str(), zooCase.erased.c_str(), zooCase.title.c_str());
    }
  }
  return 0;
}

ZooCase caseNamed(const std::string& name) {
  for (const ZooGroup& group : wholeZoo(kPairs)) {
    const auto found = std::ranges::find(group.cases, name, &ZooCase::name);
    if (found != group.cases.end()) return *found;
  }
  throw std::runtime_error("there is no case " + name);
}

// Its status as a shell says it.
int statusOf(std::vector<std::string> command) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  const pid_t process = fork();
  if (process == 0) {
    execvp(arguments[0], arguments.data());
    _exit(127);
  }
  int status = 0;
  if (process < 0 || waitpid(process, &status, 0) < 0) throw std::runtime_error("cannot run it");
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void print(const char* what, const std::vector<std::string>& paths, const Manifest& manifest) {
  for (std::string path : paths) {
    const char* kind = manifest.at(path).isFolder() ? "folder" : "file";
    std::ranges::replace(path, '\n', '?');
    std::printf("%s\t%s\t%s\n", what, kind, path.c_str());
  }
}

int run(const std::string& name, const std::string& folder, std::vector<std::string> command) {
  const ZooCase zooCase = caseNamed(name);
  ZooWorld world(folder);
  zooCase.build(world);
  for (std::string& argument : command) {
    if (argument == "@ROOT@") argument = world.path(zooCase.erased);
  }
  const Manifest before = manifestOf(folder);
  world.meetOthers();

  const int status = statusOf(command);

  world.endOthers();
  const Manifest after = manifestOf(folder);
  const Outcome outcome = outcomeOf(zooCase, world.kept(), before, after);
  std::printf("ended\t\t%d\n", status);
  print("lost", outcome.lost, before);
  print("changed", outcome.changed, before);
  print("left", outcome.left, before);
  print("added", outcome.added, after);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  try {
    if (words.size() == 1 && words[0] == "list") return list();
    if (words.size() > 3 && words[0] == "run") {
      return run(words[1], words[2], {words.begin() + 3, words.end()});
    }
    std::fprintf(stderr, "zoo_case list | zoo_case run CASE FOLDER COMMAND...\n");
    return 2;
  } catch (const CannotBuild& reason) {
    std::fprintf(stderr, "%s\n", reason.what());
    return 3;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
