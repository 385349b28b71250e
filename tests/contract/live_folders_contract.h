// What folders put together from several places promise, whatever they are put together from.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/shared/live_folders.h"

namespace zelvane::test {

// A special folder to which a source contributes one store and one real folder, once they are
// added.
class LiveFoldersBed {
 public:
  virtual ~LiveFoldersBed() = default;

  virtual platform::LiveFolders& live() = 0;
  virtual platform::SpecialFolder special() const = 0;

  // Both return the real place. The store gets something to erase; the folder gets a file "file".
  virtual std::string addStore() = 0;
  virtual std::string addRealFolder() = 0;

  // Some program holds the store's file from now on.
  virtual void holdStore() = 0;

  virtual bool storeHoldsAnything() const = 0;
  virtual bool realFolderHas(const std::string& name) const = 0;

  // A folder that has nothing to do with it, with a file "other" in it.
  virtual std::string addOtherFolder() = 0;
};

using MakeLiveFoldersBed = std::unique_ptr<LiveFoldersBed> (*)();

class LiveFoldersContract : public testing::TestWithParam<MakeLiveFoldersBed> {
 protected:
  std::unique_ptr<platform::OpenFolder> openRoot();

  std::unique_ptr<LiveFoldersBed> bed = GetParam()();
};

}  // namespace zelvane::test
