#include "plug_in_host/program.h"

#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace vtlcmd::bench {

void runProgram(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), VTLCMD_PROGRAM);
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error =
      posix_spawn(&child, VTLCMD_PROGRAM, &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = -1;
  if (error != 0 || waitpid(child, &status, 0) != child || status != 0) {
    throw std::runtime_error("the run of " + arguments[0] + " failed");
  }
}

GraphFile::GraphFile(const std::string& text)
    : path_((std::filesystem::temp_directory_path() / "vtlcmd-bench-XXXXXX").string()) {
  const int file = mkstemp(path_.data());
  if (file < 0) throw std::runtime_error("can't create " + path_);
  const bool written = write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  close(file);
  if (!written) throw std::runtime_error("can't write " + path_);
}

GraphFile::~GraphFile() { unlink(path_.c_str()); }

}  // namespace vtlcmd::bench
