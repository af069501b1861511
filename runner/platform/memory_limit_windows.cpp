#include <algorithm>
#include <limits>
#include <windows.h>
// After windows.h, whose types it needs.
#include <psapi.h>

#include "platform/memory_limit.h"

namespace vtlcmd::runner {

std::uint64_t usableMemory() {
  MEMORYSTATUSEX status{};
  status.dwLength = sizeof status;
  std::uint64_t bytes = std::numeric_limits<std::uint64_t>::max();
  if (GlobalMemoryStatusEx(&status) != 0) bytes = status.ullTotalPhys;
  // Those of the job that this process is in.
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  if (QueryInformationJobObject(nullptr, JobObjectExtendedLimitInformation, &limits, sizeof limits,
                                nullptr) == 0)
    return bytes;
  const DWORD flags = limits.BasicLimitInformation.LimitFlags;
  if ((flags & JOB_OBJECT_LIMIT_PROCESS_MEMORY) != 0)
    bytes = std::min<std::uint64_t>(bytes, limits.ProcessMemoryLimit);
  if ((flags & JOB_OBJECT_LIMIT_JOB_MEMORY) != 0)
    bytes = std::min<std::uint64_t>(bytes, limits.JobMemoryLimit);
  return bytes;
}

std::uint64_t mostMemory() { return usableMemory() / 10 * 9; }

void limitMemory(std::uint64_t bytes) {
  PROCESS_MEMORY_COUNTERS counters{};
  if (GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) == 0) return;
  const std::uint64_t most = std::numeric_limits<SIZE_T>::max();
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_PROCESS_MEMORY;
  limits.ProcessMemoryLimit =
      bytes > most - counters.PagefileUsage ? most : counters.PagefileUsage + bytes;
  // The job must last as long as the process, which closes the handle when it ends.
  HANDLE job = CreateJobObjectW(nullptr, nullptr);
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  AssignProcessToJobObject(job, GetCurrentProcess());
}

}  // namespace vtlcmd::runner
