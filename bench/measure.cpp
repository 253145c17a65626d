// Runs a command and prints its wall and processor time in seconds, its peak memory in kilobytes and its exit status.
// It is small, so that the memory that a new process briefly shares with the one that starts it does not count.
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdio>

extern char** environ;

int main(int count, char** arguments) {
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  if (count < 2 || posix_spawnp(&child, arguments[1], nullptr, nullptr, arguments + 1, environ) != 0) {
    return 1;
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
  const double cpu = static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
                     static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
  std::fprintf(stderr, "measured %.6f %.6f %ld %d\n", wall.count(), cpu, usage.ru_maxrss,
               WIFEXITED(status) ? WEXITSTATUS(status) : -1);
  return 0;
}
