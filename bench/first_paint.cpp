// Measures how long a program takes to its first painted window:
//   first_paint PROGRAM [ARGUMENT...]
// Prints "WALL PROCESSOR": the seconds from just before the process is made until at least a
// quarter of one of its windows is painted, by the clock and of the processor. Then it ends the
// program.
//
// The display must be used by nobody else, as any new window counts that is of a fair size and lies
// on the screen itself, whoever made it. What the display tells:
//
//   CreateNotify      a window is there: ask to be told what is drawn in it
//   ConfigureNotify   its size
//   MapNotify         it is on the screen
//   Damage            an area of it was drawn
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <memory>
#include <stdexcept>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kPatience = std::chrono::seconds(30);
constexpr int kLeastWidth = 100;
constexpr int kLeastHeight = 60;

struct Freed {
  void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using Answer = std::unique_ptr<T, Freed>;

struct Window {
  xcb_damage_damage_t damage = 0;
  std::uint32_t askedAt = 0;  // number of the request
  int width = 0;
  int height = 0;
  bool mapped = false;
  long painted = 0;  // pixels
};

class Display {
 public:
  Display() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0)
      throw std::runtime_error("There is no display.");
    const xcb_query_extension_reply_t* damage = xcb_get_extension_data(connection_, &xcb_damage_id);
    if (damage == nullptr || damage->present == 0) {
      throw std::runtime_error("This display does not tell what is drawn.");
    }
    damageEvent_ = damage->first_event + XCB_DAMAGE_NOTIFY;
    // Of both answers it matters only that they have come.
    const Answer<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
        connection_, xcb_damage_query_version(connection_, 1, 1), nullptr));
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_, root, XCB_CW_EVENT_MASK, &events);
    const Answer<xcb_get_input_focus_reply_t> listening(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  }
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;
  ~Display() { xcb_disconnect(connection_); }

  // False where no window is painted in time.
  bool waitForPaintedWindow(Clock::time_point limit) {
    while (Clock::now() < limit) {
      while (const Answer<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
        take(*event);
        if (isPainted()) return true;
      }
      pollfd waiting{.fd = xcb_get_file_descriptor(connection_), .events = POLLIN, .revents = 0};
      poll(&waiting, 1, 100);
    }
    return false;
  }

 private:
  void take(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7F;
    if (type == XCB_CREATE_NOTIFY) {
      created(reinterpret_cast<const xcb_create_notify_event_t&>(event));
    } else if (type == XCB_CONFIGURE_NOTIFY) {
      const auto& change = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
      windows_[change.window].width = change.width;
      windows_[change.window].height = change.height;
    } else if (type == XCB_MAP_NOTIFY) {
      windows_[reinterpret_cast<const xcb_map_notify_event_t&>(event).window].mapped = true;
    } else if (type == damageEvent_) {
      drawn(reinterpret_cast<const xcb_damage_notify_event_t&>(event), event.full_sequence);
    }
  }

  void created(const xcb_create_notify_event_t& event) {
    Window& window = windows_[event.window];
    window.width = event.width;
    window.height = event.height;
    window.damage = xcb_generate_id(connection_);
    window.askedAt = xcb_damage_create(connection_, window.damage, event.window,
                                       XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES)
                         .sequence;
    xcb_no_operation(connection_);  // gives what comes later another number
    xcb_flush(connection_);
  }

  // Of a window that was on the screen already when asked about, the answer is all of it, drawn or
  // not.
  void drawn(const xcb_damage_notify_event_t& event, std::uint32_t number) {
    Window& window = windows_[event.drawable];
    if (number != window.askedAt) window.painted += long{event.area.width} * event.area.height;
  }

  bool isPainted() const {
    for (const auto& [id, window] : windows_) {
      if (window.mapped && window.width >= kLeastWidth && window.height >= kLeastHeight &&
          window.painted * 4 >= long{window.width} * window.height) {
        return true;
      }
    }
    return false;
  }

  xcb_connection_t* connection_;
  int damageEvent_ = 0;
  std::map<xcb_window_t, Window> windows_;
};

// Of a process that is still running, with its threads, in seconds.
double processorTime(pid_t process) {
  clockid_t clock{};
  timespec time{};
  if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &time) != 0) {
    throw std::runtime_error("The program ended too early.");
  }
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

// One child process. It ends with this object at the latest.
class Child {
 public:
  explicit Child(char** command) : process_(fork()) {
    if (process_ < 0) throw std::runtime_error("No process can be made.");
    if (process_ == 0) {
      execvp(command[0], command);
      std::perror(command[0]);
      _exit(127);
    }
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  ~Child() {
    // Asked first, as a program may have to tidy up.
    kill(process_, SIGTERM);
    for (int attempt = 0; attempt < 500; ++attempt) {
      if (waitpid(process_, nullptr, WNOHANG) == process_) return;
      usleep(10'000);
    }
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }

  pid_t id() const { return process_; }

 private:
  pid_t process_;
};

void measure(char** command) {
  Display display;
  const Clock::time_point start = Clock::now();
  const Child child(command);
  if (!display.waitForPaintedWindow(start + kPatience)) {
    throw std::runtime_error("No window was painted in time.");
  }
  const std::chrono::duration<double> wall = Clock::now() - start;
  std::printf("%.6f %.6f\n", wall.count(), processorTime(child.id()));
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) return 2;
  try {
    measure(arguments + 1);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
