// A list of names, kept in one piece of memory because a folder may hold millions of them.
#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace zelvane::platform {

// Can be added to and walked through. No file system has names with zero bytes in them, so one
// stands behind each name: the views that the iterator gives can be handed to the system as they
// are.
class NameList {
 public:
  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = std::string_view;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = std::string_view;

    Iterator() = default;

    std::string_view operator*() const { return at_; }
    Iterator& operator++() {
      at_ += std::string_view(at_).size() + 1;
      return *this;
    }
    Iterator operator++(int) {
      const Iterator before = *this;
      ++*this;
      return before;
    }
    friend bool operator==(const Iterator&, const Iterator&) = default;

   private:
    friend class NameList;
    explicit Iterator(const char* at) : at_(at) {}

    const char* at_ = nullptr;
  };

  void add(std::string_view name) {
    names_.append(name).push_back('\0');
    ++size_;
  }

  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }

  // Good until the list is added to, moved or destroyed.
  Iterator begin() const { return Iterator(names_.data()); }
  Iterator end() const { return Iterator(names_.data() + names_.size()); }

 private:
  std::string names_;
  std::size_t size_ = 0;
};

}  // namespace zelvane::platform
