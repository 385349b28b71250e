#include "platform/windows/explorer_history.h"

namespace zelvane::platform {
namespace {

using Root = Registry::Root;

constexpr auto kTypedTimes = R"(Software\Microsoft\Internet Explorer\TypedURLsTime)";
constexpr auto kTypedPaths = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\TypedPaths)";
constexpr auto kSearched = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\WordWheelQuery)";

}  // namespace

void ExplorerHistory::eraseTyped() {
  registry_.deleteKey(Root::currentUser, kTypedTimes);
  registry_.deleteKey(Root::currentUser, kTypedPaths);
}

void ExplorerHistory::eraseRun() { registry_.deleteKey(Root::currentUser, kSearched); }

}  // namespace zelvane::platform
