// A private file that holds one JSON object with a format number.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <nlohmann/json_fwd.hpp>

#include "platform/linux/private_file.h"

namespace zelvane::platform {

//     { "format": 1, ... }
//
// Names in it that Zelvane does not know stay where they are. The format number rises only with a
// change that an older Zelvane would get wrong. A file with a higher one counts as not understood,
// like one that is cut, no JSON, nested deeper than anything that Zelvane writes, or without an
// object where there has to be one.
class PrivateJsonFile {
 public:
  // `first` stands for a file that is not there. Its members are objects, and have to be objects in
  // a file that is.
  PrivateJsonFile(PrivateFile file, nlohmann::json first);
  ~PrivateJsonFile();

  // Throws accessError where the file is not understood, otherwise like PrivateFile.
  nlohmann::json read() const;

  // The same; writes nothing where `change` changes nothing.
  void update(const std::function<void(nlohmann::json& object)>& change);

  // Sets the file aside where it is not understood (or too big) and returns its new path.
  std::optional<std::string> setAsideIfDamaged();

 private:
  nlohmann::json parsed(const std::optional<std::string>& content) const;

  PrivateFile file_;
  std::unique_ptr<nlohmann::json> first_;
};

}  // namespace zelvane::platform
