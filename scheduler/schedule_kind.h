// The kinds of schedule, by their places in the list `cmbDays`.
#pragma once

namespace zelvane::scheduler {

// A weekday's kind is its place from Monday on.
inline constexpr int kMonday = 0;
inline constexpr int kSunday = 6;
inline constexpr int kDaily = 7;
inline constexpr int kDate = 8;
inline constexpr int kDateAndTime = 9;
inline constexpr int kNever = 10;

constexpr bool isWeekday(int kind) { return kind >= kMonday && kind <= kSunday; }

}  // namespace zelvane::scheduler
