// The little that the rules know of C++: lines, comments, literals, includes, whole words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelvane::architecture {

// The lines without their ends; a last line without an end counts, nothing after a last end does.
std::vector<std::string_view> linesOf(std::string_view text);

// The same text, lines and columns kept, with blanks for all comments.
std::string withoutComments(std::string_view text);

// The same text, lines and columns kept, with blanks for all comments and for what stands in
// quotes.
std::string codeOnly(std::string_view text);

struct Include {
  int line;          // from 1
  std::string name;  // without its quotes or angles
  bool quoted;

  bool operator==(const Include&) const = default;
};

std::vector<Include> includesOf(std::string_view text);

// Letters, digits and "_" make a word. The place of the first whole `word` in `text` from `start`
// on, or npos.
std::size_t findWord(std::string_view text, std::string_view word, std::size_t start = 0);

// In the folder `folder` ("ui/qt") or below it?
bool isBelow(std::string_view path, std::string_view folder);

// The folder that holds `path`, "" for the root.
std::string_view folderOf(std::string_view path);

bool isHeader(std::string_view path);

// A header or a .cpp file.
bool isCpp(std::string_view path);

// C++ that ends in the program, and so is held to more than a test or a script.
bool isProduct(std::string_view path);

}  // namespace zelvane::architecture
