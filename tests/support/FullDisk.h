#pragma once
// For the life of the object no file of this process grows beyond `largest` bytes, as on a disk that is full: writing
// fails with EFBIG, for root as for anybody.

#include <sys/resource.h>

#include <csignal>

class FullDisk {
 public:
  explicit FullDisk(rlim_t largest) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{largest, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit m_before{};
};
