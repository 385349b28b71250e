// A table of texts whose rows have keys.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/controls/control.h"

namespace zelvane::controls {

class ListView : public Control {
 public:
  struct Row {
    std::string key;
    std::vector<std::string> cells;  // one for each column
  };

  ListView(Page& page, std::string name, std::vector<std::string> columns)
      : Control(page, std::move(name)), columns_(std::move(columns)) {}

  const std::vector<std::string>& columns() const { return columns_; }
  const std::vector<Row>& rows() const { return rows_; }

  void clear();

  // A key that is there already is refused with invalidPropertyValue. Missing cells are empty,
  // surplus ones are dropped.
  void add(Row row);

 private:
  std::vector<std::string> columns_;
  std::vector<Row> rows_;
};

}  // namespace zelvane::controls
