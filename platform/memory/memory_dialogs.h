// Boxes that nobody has to close: they are written down, and answered as a test said beforehand.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/dialogs.h"

namespace zelvane::platform {

class MemoryDialogs : public Dialogs {
 public:
  void show(const MessageBox& box) override;
  std::optional<std::string> chooseFile(const FileQuestion& question) override;
  std::optional<std::string> chooseFolder(const std::string& prompt) override;

  // The next file or folder question without an answer yet gets this one; nothing is a cancel.
  // A question that nobody answered beforehand is cancelled.
  void answer(std::optional<std::string> path) { answers_.push_back(std::move(path)); }

  // What happens while the next box or question is open.
  void whileOpen(std::function<void()> action) { whileOpen_.push_back(std::move(action)); }

  // Everything that was shown or asked, in order.
  const std::vector<MessageBox>& boxes() const { return boxes_; }
  const std::vector<FileQuestion>& fileQuestions() const { return fileQuestions_; }
  const std::vector<std::string>& folderPrompts() const { return folderPrompts_; }

  // The text of the latest box; empty when there was none.
  std::string lastText() const { return boxes_.empty() ? std::string() : boxes_.back().text; }

 private:
  void stayOpen();
  std::optional<std::string> nextAnswer();

  std::vector<MessageBox> boxes_;
  std::vector<FileQuestion> fileQuestions_;
  std::vector<std::string> folderPrompts_;
  std::deque<std::optional<std::string>> answers_;
  std::deque<std::function<void()>> whileOpen_;
};

}  // namespace zelvane::platform
