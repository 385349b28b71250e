// What every desktop's single files promise, and the world in which a tenant is asked to keep it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "platform/files.h"

namespace zelvane::test {

// Names are relative to a folder of the test's own, parted by "/"; folders above are made.
class FilesBed {
 public:
  virtual ~FilesBed() = default;

  virtual platform::Files& files() = 0;
  virtual std::string path(const std::string& name) const = 0;

  virtual void addFile(const std::string& name, const std::string& content) = 0;
  virtual void addFolder(const std::string& name) = 0;
  virtual void addLink(const std::string& name, const std::string& target) = 0;
  virtual void addSocket(const std::string& name) = 0;

  // A folder in which this user may do nothing.
  virtual void protectFolder(const std::string& name) = 0;

  // The content of the file or of what a link of that name leads to.
  virtual std::optional<std::string> content(const std::string& name) const = 0;
  virtual bool isLink(const std::string& name) const = 0;

  // How many entries of any kind a folder has.
  virtual std::size_t entries(const std::string& folder) const = 0;

  // Why a promise cannot be asked for here; empty where it can.
  virtual std::string whyNoRefusals() const { return {}; }
  virtual std::string whyNoSockets() const { return {}; }
  virtual std::string whyReadersForbidReplacing() const { return {}; }

  // Why links are what they lead to, and stay; empty where they are something themselves.
  virtual std::string whyNoLinks() const { return {}; }
};

using MakeFilesBed = std::unique_ptr<FilesBed> (*)();

class FilesContract : public testing::TestWithParam<MakeFilesBed> {
 protected:
  // Writes a whole file as the program does.
  void replace(const std::string& name, const std::string& content);

  std::unique_ptr<FilesBed> bed = GetParam()();
};

}  // namespace zelvane::test
