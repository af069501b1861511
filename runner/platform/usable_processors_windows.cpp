#include <algorithm>
#include <bitset>
#include <cmath>
#include <thread>
#include <windows.h>

#include "platform/usable_processors.h"

namespace vtlcmd::runner {
namespace {

unsigned permittedProcessors() {
  DWORD_PTR own = 0;
  DWORD_PTR all = 0;
  if (GetProcessAffinityMask(GetCurrentProcess(), &own, &all) != 0 && own != 0)
    return static_cast<unsigned>(std::bitset<64>(own).count());
  return std::thread::hardware_concurrency();
}

/// The part of all processors' time that the job of this process may take.
double shareOfJob() {
  JOBOBJECT_CPU_RATE_CONTROL_INFORMATION control{};
  constexpr DWORD hard = JOB_OBJECT_CPU_RATE_CONTROL_ENABLE | JOB_OBJECT_CPU_RATE_CONTROL_HARD_CAP;
  if (QueryInformationJobObject(nullptr, JobObjectCpuRateControlInformation, &control,
                                sizeof control, nullptr) == 0 ||
      (control.ControlFlags & hard) != hard)
    return 1;
  // In hundredths of a per cent.
  return control.CpuRate / 10'000.0;
}

}  // namespace

unsigned usableProcessors() {
  const double processors = std::max(1U, permittedProcessors());
  const double inJob = std::max(1U, std::thread::hardware_concurrency()) * shareOfJob();
  return static_cast<unsigned>(std::max(1.0, std::floor(std::min(processors, inJob))));
}

}  // namespace vtlcmd::runner
