// The sixteen cleaning options: what each is called, where it is shown, what it makes a run do, and
// what the two Default buttons set it to. Plain data; no window is needed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace zelvane::cleaner {

inline constexpr std::size_t kOptionCount = 16;

enum class OptionTab { main, cleanInternet, cleanComputer };

// What a run does for a ticked option.
enum class Task {
  none,  // the box is shown, stored and restored; a run passes over it
  typedAddresses,
  recentFiles,
  myDocuments,
  recycleBin,
  browserCache,
  cookies,
  favorites,
  history,
  temporaryFiles,
  clipboard,
  runHistory,
  scriptDebugging,
  scriptErrors,
};

// The index of an option is its place in `kOptions`, the ending of its stored key and its place in
// the order of a run.
struct Option {
  std::string_view caption;
  OptionTab tab;
  Task task;
  std::string_view logCaption;   // empty for a silent task
  std::string_view description;  // what the caption does not say; shown as a tool tip
};

extern const std::array<Option, kOptionCount> kOptions;

// One box and the state that a Default button gives it.
struct DefaultState {
  std::size_t index;
  int state;
};

// In the order in which the buttons set them. The list of "Clean Internet" reaches into the other
// pages; neither list touches 12 to 15.
extern const std::span<const DefaultState> kInternetDefaults;
extern const std::span<const DefaultState> kComputerDefaults;

// The order of the boxes on their pages, top to bottom.
extern const std::span<const std::size_t> kInternetOrder;
extern const std::span<const std::size_t> kComputerOrder;

}  // namespace zelvane::cleaner
