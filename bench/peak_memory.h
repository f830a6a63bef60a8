// The memory that a piece of work takes at its highest.
#pragma once

#include <stdexcept>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ovindra::bench {

/// In MiB, of a process of its own, what it starts with included. Work that fails has no figure: an error.
template <typename Act>
double PeakMemory(Act act) {
  const pid_t child = fork();
  if (child == 0) {
    act();
    _exit(0);
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  if (status != 0) throw std::runtime_error("the process whose memory is measured has failed");
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

}  // namespace ovindra::bench
