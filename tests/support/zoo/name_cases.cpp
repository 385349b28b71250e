#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {
namespace {

// A file of that name, one in a folder of such a name, and one in a folder within another.
void addEverywhere(ZooWorld& world, const std::string& name) {
  world.file("root/" + name);
  world.file("root/folder " + name + "/" + name);
  world.file("root/" + name + " folder/" + name + "/file");
}

}  // namespace

std::vector<ZooCase> nameCases() {
  return {
      {.name = "NamesThatLookLikeSomethingElse",
       .title = "names that look like options, patterns, commands; with line breaks and blanks",
       .build =
           [](ZooWorld& world) {
             for (const std::string name : {"-rf",        "--",         "--no-preserve-root",
                                            "-",          "*",          "?",
                                            "[a-z]",      "~",          "$HOME",
                                            "`id`",       "$(id)",      ";",
                                            "|",          "&",          "a\nb",
                                            "\n",         "\t",         "  leading",
                                            "trailing  ", " ",          "a\\b",
                                            "%s%n",       "\"quoted\"", "'",
                                            "C:",         "con",        "\x01\x7f"}) {
               addEverywhere(world, name);
             }
           }},
      {.name = "NamesThatAreNotUtf8",
       .title = "names that are no valid UTF-8",
       .build =
           [](ZooWorld& world) {
             for (const std::string name : {"\xff\xfe", "caf\xe9", "\xc0\xaf", "\xed\xa0\x80"}) {
               addEverywhere(world, name);
             }
           }},
      {.name = "NamesOf255Bytes",
       .title = "names of 255 bytes",
       .build =
           [](ZooWorld& world) {
             world.file("root/" + std::string(255, 'f'));
             world.file("root/" + std::string(255, 'd') + "/" + std::string(255, 'f'));
           }},
      {.name = "PathOfMoreThan4096Bytes",
       .title = "paths longer than 4,096 bytes",
       .build = [](ZooWorld& world) { world.deepFolders("root/deep", std::string(250, 'd'), 40); }},
      {.name = "FoldersIn2000Levels",
       .title = "2,000 folders, one in another",
       .build = [](ZooWorld& world) { world.deepFolders("root/deep", "d", 2000); }},
  };
}

}  // namespace zelvane::test
