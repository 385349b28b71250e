// What the leak sanitizer need not tell of, in a program of which it is a part.

// Public symbol of the sanitizer's; it calls it at the end. With the first icon of a process the
// toolkit's library for the bus keeps an object of 136 bytes for good, however many icons follow.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)

const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:libQt6DBus\n";
}
