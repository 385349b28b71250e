#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {
namespace {

void succeed(int result) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), "in another process");
}

// Runs a copy of a system's program, which waits for input that never comes.
void copyProgram(ZooWorld& world, const std::string& name) {
  std::filesystem::copy_file("/bin/cat", world.path(name));
}

// Returns when the program has begun, which is when the kernel has closed what ends with an exec.
void run(const std::string& program) {
  int begun[2];
  int input[2];
  succeed(pipe2(begun, O_CLOEXEC));
  succeed(pipe2(input, O_CLOEXEC));
  const pid_t process = fork();
  succeed(process);
  if (process == 0) {
    dup2(input[0], STDIN_FILENO);
    execl(program.c_str(), program.c_str(), nullptr);
    _exit(1);
  }
  close(begun[1]);
  char none = 0;
  succeed(static_cast<int>(read(begun[0], &none, 1)));
  // The end of this process closes the input, which ends the program.
}

}  // namespace

std::vector<ZooCase> inUseCases() {
  return {
      {.name = "FileOpenHere",
       .title = "a file that is open in the eraser's parent",
       .stays = {"root/plain/open"},
       .build =
           [](ZooWorld& world) {
             world.file("root/plain/open");
             world.hold("root/plain/open");
           }},
      {.name = "FileOpenElsewhere",
       .title = "a file that another program has open",
       .stays = {"root/open"},
       .build =
           [](ZooWorld& world) {
             world.file("root/open");
             world.other([path = world.path("root/open")](const Say& say) {
               succeed(open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
               say("open");
               stayUntilKilled();
             });
           }},
      {.name = "FileMappedElsewhere",
       .title = "a file that another program has mapped and closed",
       .stays = {"root/mapped"},
       .build =
           [](ZooWorld& world) {
             world.file("root/mapped");
             world.other([&world](const Say& say) {
               world.map("root/mapped");
               say("mapped");
               stayUntilKilled();
             });
           }},
      {.name = "FileOfAProgramThatRuns",
       .title = "the file of a program that runs",
       .stays = {"root/program"},
       .build =
           [](ZooWorld& world) {
             copyProgram(world, "root/program");
             copyProgram(world, "root/other");
             world.other([path = world.path("root/program")](const Say& say) {
               run(path);
               say("runs");
               stayUntilKilled();
             });
           }},
      {.name = "OtherNameOfAnOpenFile",
       .title = "a second name of a file outside that a program has open",
       .stays = {"root/name"},
       .build =
           [](ZooWorld& world) {
             world.hardLink("root/name", "outside/file");
             world.hold("outside/file");
           }},
      {.name = "FolderThatSomeoneIsIn",
       .title = "a folder that is the current one of a program",
       .build =
           [](ZooWorld& world) {
             world.other([path = world.path("root/plain/folder")](const Say& say) {
               succeed(chdir(path.c_str()));
               say("in");
               stayUntilKilled();
             });
           }},
  };
}

}  // namespace zelvane::test
