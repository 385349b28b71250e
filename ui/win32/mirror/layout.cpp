#include "ui/win32/mirror/layout.h"

#include <algorithm>
#include <numeric>

namespace zelvane::win32 {

namespace {

class WindowItem : public Item {
 public:
  explicit WindowItem(Window& window) : window_(window) {}

  bool isShown() const override { return window_.isShown(); }
  Size natural() const override { return window_.natural(); }
  int heightFor(int width) const override { return window_.heightFor(width); }
  void place(const Area& area) override { window_.place(area); }

 private:
  Window& window_;
};

class Space : public Item {
 public:
  Size natural() const override { return {}; }
  void place(const Area&) override {}
};

// Shares out what is left over, or takes back what is missing, among those that grow.
void fit(std::vector<int>& lengths, const std::vector<bool>& grows, int room) {
  int left = room - std::accumulate(lengths.begin(), lengths.end(), 0);
  auto growers = static_cast<int>(std::count(grows.begin(), grows.end(), true));
  for (std::size_t at = 0; at < lengths.size() && growers > 0; ++at) {
    if (grows[at]) {
      const int share = std::max(left / growers, -lengths[at]);
      lengths[at] += share;
      left -= share;
      --growers;
    }
  }
}

void drawLine(HDC surface, int left, int top, int width, int height) {
  const RECT line{left, top, left + width, top + height};
  FillRect(surface, &line, GetSysColorBrush(COLOR_3DLIGHT));
}

}  // namespace

std::unique_ptr<Item> itemOf(Window& window) { return std::make_unique<WindowItem>(window); }

void Box::add(Window& window, Fit fit) { add(itemOf(window), fit); }

Box& Box::addBox(Lie lie, Gap between, Fit fit) {
  auto box = std::make_unique<Box>(lie, between, look_);
  Box& added = *box;
  add(std::move(box), fit);
  return added;
}

void Box::addSpace() { add(std::make_unique<Space>(), {.grows = true}); }

void Box::add(std::unique_ptr<Item> item, Fit fit) {
  entries_.push_back({std::move(item), fit, {}});
}

void Box::setMargins(Gap left, Gap top, Gap right, Gap bottom) {
  margins_ = {left, top, right, bottom};
}

bool Box::isShown() const { return !shownEntries().empty(); }

std::vector<Box::Entry*> Box::shownEntries() {
  std::vector<Entry*> shown;
  for (Entry& entry : entries_) {
    if (entry.item->isShown()) {
      shown.push_back(&entry);
    }
  }
  return shown;
}

std::vector<const Box::Entry*> Box::shownEntries() const {
  std::vector<const Entry*> shown;
  for (const Entry& entry : entries_) {
    if (entry.item->isShown()) {
      shown.push_back(&entry);
    }
  }
  return shown;
}

// The margins and the gaps between the shown things.
Size Box::marginSize() const {
  const auto shown = static_cast<int>(shownEntries().size());
  const int gaps = std::max(shown - 1, 0) * look_.length(between_);
  return {
      look_.length(margins_.left) + look_.length(margins_.right) + (lie_ == Lie::row ? gaps : 0),
      look_.length(margins_.top) + look_.length(margins_.bottom) +
          (lie_ == Lie::column ? gaps : 0)};
}

Size Box::natural() const {
  Size inside;
  for (const Entry* entry : shownEntries()) {
    const Size size = entry->item->natural();
    if (lie_ == Lie::row) {
      inside = {inside.width + size.width, std::max(inside.height, size.height)};
    } else {
      inside = {std::max(inside.width, size.width), inside.height + size.height};
    }
  }
  const Size margins = marginSize();
  return {inside.width + margins.width, inside.height + margins.height};
}

// The shown things' lengths in the box's direction, for so much room along it and across.
std::vector<int> Box::lengthsAlong(int along, int across) const {
  std::vector<int> lengths;
  std::vector<bool> grows;
  for (const Entry* entry : shownEntries()) {
    lengths.push_back(lie_ == Lie::row ? entry->item->natural().width
                                       : entry->item->heightFor(across));
    grows.push_back(entry->fit.grows);
  }
  fit(lengths, grows, along);
  return lengths;
}

int Box::heightFor(int width) const {
  const Size margins = marginSize();
  const int inside = width - margins.width;
  int height = 0;
  if (lie_ == Lie::column) {
    for (const Entry* entry : shownEntries()) {
      height += entry->item->heightFor(inside);
    }
  } else {
    const auto shown = shownEntries();
    const auto widths = lengthsAlong(inside, 0);
    for (std::size_t at = 0; at < shown.size(); ++at) {
      height = std::max(height, shown[at]->item->heightFor(widths[at]));
    }
  }
  return height + margins.height;
}

// Where in its room a thing lies.
Area Box::placed(const Entry& entry, const Area& room) const {
  if (entry.fit.across == Across::fill) {
    return room;
  }
  const auto offset = [&](int left) {
    return entry.fit.across == Across::start ? 0
           : entry.fit.across == Across::end ? left
                                             : left / 2;
  };
  Area area = room;
  if (lie_ == Lie::row) {
    area.height = std::min(room.height, entry.item->heightFor(room.width));
    area.top += offset(room.height - area.height);
  } else {
    area.width = std::min(room.width, entry.item->natural().width);
    area.left += offset(room.width - area.width);
  }
  return area;
}

void Box::place(const Area& area) {
  area_ = area;
  const Size margins = marginSize();
  const Size inside{area.width - margins.width, area.height - margins.height};
  const bool row = lie_ == Lie::row;
  const auto lengths =
      row ? lengthsAlong(inside.width, inside.height) : lengthsAlong(inside.height, inside.width);
  int left = area.left + look_.length(margins_.left);
  int top = area.top + look_.length(margins_.top);
  const auto shown = shownEntries();
  for (std::size_t at = 0; at < shown.size(); ++at) {
    const Area room{left, top, row ? lengths[at] : inside.width, row ? inside.height : lengths[at]};
    shown[at]->area = room;
    shown[at]->item->place(placed(*shown[at], room));
    (row ? left : top) += lengths[at] + look_.length(between_);
  }
}

void Box::draw(HDC surface) const {
  for (const Entry* entry : shownEntries()) {
    entry->item->draw(surface);
  }
}

void Card::draw(HDC surface) const {
  Box::draw(surface);
  const int thin = look().scaled(1);
  const Area& all = area();
  drawLine(surface, all.left, all.top, all.width, thin);
  for (const Entry& entry : entries()) {
    if (entry.item->isShown()) {
      drawLine(surface, all.left, entry.area.top + entry.area.height - thin, all.width, thin);
    }
  }
  drawLine(surface, all.left, all.top, thin, all.height);
  drawLine(surface, all.left + all.width - thin, all.top, thin, all.height);
}

void FieldTable::addRow(Window& label, std::unique_ptr<Item> field, std::unique_ptr<Item> beside) {
  rows_.push_back({{itemOf(label), std::move(field), std::move(beside)}});
}

void FieldTable::addRow(std::unique_ptr<Item> field) {
  rows_.push_back({{std::make_unique<Space>(), std::move(field), nullptr}});
}

// A field with nothing beside it may use the third column as well.
int FieldTable::columnWidth(std::size_t column, bool withBeside) const {
  int width = 0;
  for (const Row& row : rows_) {
    if (row.cells[column] && (column != 1 || (row.cells[2] != nullptr) == withBeside)) {
      width = std::max(width, row.cells[column]->natural().width);
    }
  }
  return width;
}

int FieldTable::height(const Row& row) {
  int height = 0;
  for (const auto& cell : row.cells) {
    height = std::max(height, cell ? cell->natural().height : 0);
  }
  return height;
}

Size FieldTable::natural() const {
  const int gap = look_.length(Gap::small);
  const int fields =
      std::max(columnWidth(1, true) + gap + columnWidth(2, true), columnWidth(1, false));
  int heights = std::max(static_cast<int>(rows_.size()) - 1, 0) * gap;
  for (const Row& row : rows_) {
    heights += height(row);
  }
  return {columnWidth(0, false) + gap + fields, heights};
}

void FieldTable::place(const Area& area) {
  const int gap = look_.length(Gap::small);
  const int labels = columnWidth(0, false);
  const int besides = columnWidth(2, true);
  const int fieldsLeft = area.left + labels + gap;
  const int room = area.left + area.width - fieldsLeft;
  const int widest = std::max(columnWidth(1, true), columnWidth(1, false));
  const bool grow = fields_ == Fields::grow;
  int top = area.top;
  for (const Row& row : rows_) {
    const int rowHeight = height(row);
    const auto centred = [&](Item& cell, int left, int width) {
      const int cellHeight = cell.natural().height;
      cell.place({left, top + (rowHeight - cellHeight) / 2, width, cellHeight});
    };
    const int labelWidth = row.cells[0]->natural().width;
    centred(*row.cells[0], area.left + labels - labelWidth, labelWidth);
    const int alone = grow ? room : widest;
    const int shared = grow ? room - gap - besides : widest;
    const int fieldWidth = row.cells[2] ? shared : alone;
    centred(*row.cells[1], fieldsLeft, fieldWidth);
    if (row.cells[2]) {
      centred(*row.cells[2], fieldsLeft + fieldWidth + gap, row.cells[2]->natural().width);
    }
    top += rowHeight + gap;
  }
}

}  // namespace zelvane::win32
