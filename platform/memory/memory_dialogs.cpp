#include "platform/memory/memory_dialogs.h"

namespace zelvane::platform {

void MemoryDialogs::show(const MessageBox& box) {
  boxes_.push_back(box);
  stayOpen();
}

std::optional<std::string> MemoryDialogs::chooseFile(const FileQuestion& question) {
  fileQuestions_.push_back(question);
  stayOpen();
  return nextAnswer();
}

std::optional<std::string> MemoryDialogs::chooseFolder(const std::string& prompt) {
  folderPrompts_.push_back(prompt);
  stayOpen();
  return nextAnswer();
}

void MemoryDialogs::stayOpen() {
  if (whileOpen_.empty()) return;
  // Taken off first: the action may open another box.
  const auto action = std::move(whileOpen_.front());
  whileOpen_.pop_front();
  action();
}

std::optional<std::string> MemoryDialogs::nextAnswer() {
  if (answers_.empty()) return std::nullopt;
  auto answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

}  // namespace zelvane::platform
