// Rows, columns and tables, which give each thing the room that its texts need.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "ui/win32/mirror/look.h"
#include "ui/win32/mirror/window.h"

namespace zelvane::win32 {

// Something that has a place.
class Item {
 public:
  Item() = default;
  Item(const Item&) = delete;
  Item& operator=(const Item&) = delete;
  virtual ~Item() = default;

  virtual bool isShown() const { return true; }
  // What it takes to be seen whole, and how high it then is at that width.
  virtual Size natural() const = 0;
  virtual int heightFor(int /*width*/) const { return natural().height; }
  virtual void place(const Area& area) = 0;
  // What is drawn behind the windows.
  virtual void draw(HDC /*surface*/) const {}
};

// Where a thing lies across the direction of its row or column, where that has more room.
enum class Across { fill, start, centre, end };

struct Fit {
  Across across = Across::fill;
  bool grows = false;  // shares what room is left; gives up room first where there is too little
};

// Things beside each other, or below each other.
class Box : public Item {
 public:
  enum class Lie { row, column };

  Box(Lie lie, Gap between, const Look& look) : lie_(lie), between_(between), look_(look) {}

  // Windows and look outlive it.
  void add(Window& window, Fit fit = {});
  // A row or column of its own.
  Box& addBox(Lie lie, Gap between, Fit fit = {});
  // Nothing, which takes the room that is left.
  void addSpace();
  virtual void add(std::unique_ptr<Item> item, Fit fit);

  void setMargins(Gap left, Gap top, Gap right, Gap bottom);
  void setMargins(Gap all) { setMargins(all, all, all, all); }

  bool isShown() const override;
  Size natural() const override;
  int heightFor(int width) const override;
  void place(const Area& area) override;
  void draw(HDC surface) const override;

 protected:
  struct Entry {
    std::unique_ptr<Item> item;
    Fit fit;
    Area area;
  };

  const Look& look() const { return look_; }
  const Area& area() const { return area_; }
  const std::vector<Entry>& entries() const { return entries_; }

 private:
  struct Margins {
    Gap left = Gap::none, top = Gap::none, right = Gap::none, bottom = Gap::none;
  };

  std::vector<Entry*> shownEntries();
  std::vector<const Entry*> shownEntries() const;
  Size marginSize() const;
  std::vector<int> lengthsAlong(int along, int across) const;
  Area placed(const Entry& entry, const Area& room) const;

  Lie lie_;
  Gap between_;
  const Look& look_;
  Margins margins_;
  Area area_;
  std::vector<Entry> entries_;
};

// A bordered column, which holds a group together; a line parts its rows.
class Card : public Box {
 public:
  explicit Card(const Look& look) : Box(Lie::column, Gap::none, look) {}

  void draw(HDC surface) const override;
};

// Rows of three: a label, its field, and what stands beside the field or nothing.
class FieldTable : public Item {
 public:
  enum class Fields { natural, grow };

  FieldTable(Fields fields, const Look& look) : fields_(fields), look_(look) {}

  void addRow(Window& label, std::unique_ptr<Item> field, std::unique_ptr<Item> beside);
  // A field without a label.
  void addRow(std::unique_ptr<Item> field);

  Size natural() const override;
  void place(const Area& area) override;

 private:
  struct Row {
    std::unique_ptr<Item> cells[3];
  };

  int columnWidth(std::size_t column, bool withBeside) const;
  static int height(const Row& row);

  Fields fields_;
  const Look& look_;
  std::vector<Row> rows_;
};

// A window as a thing that has a place.
std::unique_ptr<Item> itemOf(Window& window);

}  // namespace zelvane::win32
