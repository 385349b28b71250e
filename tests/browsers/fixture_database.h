// A database in a test's hands, apart from the code under test.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zelvane::test {

// Makes the file with the schema of that name (see schemas/), and runs the statements.
void makeDatabase(const std::string& path, std::string_view schema, const std::string& statements);

// Runs statements in one that is there.
void runIn(const std::string& path, const std::string& statements);

// Every row of the query, its columns joined by "|".
std::vector<std::string> rowsOf(const std::string& path, const std::string& query);

// A folder in the format of LevelDB: makes it with these entries, and gives all that are in one.
void makeLevelDb(const std::string& folder, const std::map<std::string, std::string>& entries);
std::map<std::string, std::string> entriesOf(const std::string& folder);

}  // namespace zelvane::test
