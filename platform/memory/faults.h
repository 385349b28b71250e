// The calls of all decorated ports of a desktop in one sequence, and which of them fail.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/error.h"

namespace zelvane::platform {

// A FaultyX wraps any tenant of port X and shares this with the others. It passes each call on,
// except one that is to fail: that one does nothing, and fails as the port's header says:
//
//   SettingsBackend  find nothing; save diskFull; check a complaint
//   Registry         open, create, set, deleteValue, deleteKey accessDenied; query nothing; check a
//                    complaint
//   ProfileFile      find nothing; write false
//   SpecialFolders   path, temporaryPath nothing
//   FolderTree       openRoot pathNotFound
//   OpenFolder       list deviceIo; openSubfolder, removeFile permissionDenied; removeFolder
//                    accessError
//   Files            exists false; open fileNotFound; readWhole deviceIo; remove, createBeside,
//                    createInPlaceOf permissionDenied
//   PendingFile      write diskFull; publish permissionDenied
//   ReadStream       read deviceIo
//   RecycleBin       empty permissionDenied
//   Clipboard        clear permissionDenied
//   Programs         programFor nothing; start false
//
// The other ports, and `Registry::close`, have no failure to promise: Clock, Identity, Machine,
// Dialogs, WindowCommands, EventPump, Sound, ProcessEnd, and SingleInstance, whose desktop says
// true where it cannot tell. They are not wrapped.
class Faults {
 public:
  struct Call {
    std::string name;     // "Registry::open"
    std::string subject;  // on what: a path, or names parted as the port parts them
    int occurrence = 1;   // the first call of that name and subject, the second ...

    friend bool operator==(const Call&, const Call&) = default;
  };

  // Makes the n-th call from the beginning fail; 1 is the first. Further numbers may be added.
  void failCall(std::size_t number) { failing_.insert(number); }

  // For a decorator, once for each call of its port: true where this one is to fail.
  bool fails(const std::string& name, const std::string& subject);
  // The same where failing is throwing.
  void throwIfItFails(ErrorNumber how, const std::string& name, const std::string& subject);

  // Every call, in order, and those of them that failed.
  const std::vector<Call>& calls() const { return calls_; }
  const std::vector<Call>& failed() const { return failed_; }

  // This moment is the beginning. Nothing is to fail any more.
  void startOver() { *this = {}; }

 private:
  std::set<std::size_t> failing_;
  std::vector<Call> calls_;
  std::vector<Call> failed_;
  std::map<std::pair<std::string, std::string>, int> occurrences_;
};

}  // namespace zelvane::platform
