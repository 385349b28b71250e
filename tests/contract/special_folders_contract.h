// What every desktop's special folders promise, and the world in which a tenant is asked to keep
// it.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/special_folders.h"

namespace zelvane::test {

// All paths are absolute. What the desktop is set up to say need not exist.
class SpecialFoldersBed {
 public:
  virtual ~SpecialFoldersBed() = default;

  virtual platform::SpecialFolders& folders() = 0;

  // The user's home, which exists.
  virtual std::string home() const = 0;

  virtual void makeFolder(const std::string& path) = 0;
  virtual void makeFile(const std::string& path) = 0;
  virtual void removeFolder(const std::string& path) = 0;

  // Sets up the desktop: where the documents and the temporary files are.
  virtual void setDocuments(const std::string& path) = 0;
  virtual void setTemporary(const std::string& path) = 0;
};

using MakeSpecialFoldersBed = std::unique_ptr<SpecialFoldersBed> (*)();

class SpecialFoldersContract : public testing::TestWithParam<MakeSpecialFoldersBed> {
 protected:
  std::unique_ptr<SpecialFoldersBed> bed = GetParam()();
};

}  // namespace zelvane::test
