// Makes each test program speak the language of its environment. The program does, because its
// toolkit sees to it, and whoever then reads "1,5" or compares letters had better know.
#include <clocale>

namespace {

[[maybe_unused]] const char* const language = std::setlocale(LC_ALL, "");

}  // namespace
