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

  // Between the names of a path, and the path of the folder above all that are above the home.
  virtual char separator() const { return '/'; }
  virtual std::string top() const { return "/"; }

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
  std::string inHome(const std::string& name) const {
    return bed->home() + bed->separator() + name;
  }

  std::unique_ptr<SpecialFoldersBed> bed = GetParam()();
  const std::string separator = std::string(1, bed->separator());
};

}  // namespace zelvane::test
