#include "process/run_checks.h"

#include <atomic>
#include <exception>
#include <thread>

namespace vtlcmd::validator {

std::vector<Result> runChecks(const CheckList& checks, const Subject& subject, unsigned jobs,
                              const std::function<Result(const Check&, const Subject&)>& run) {
  std::vector<Result> results(checks.size(), {Outcome::skipped, {}});
  std::vector<std::exception_ptr> errors(jobs);
  std::atomic<std::size_t> next = 0;
  const auto work = [&](unsigned worker) {
    try {
      for (std::size_t i = next++; i < checks.size(); i = next++)
        results[i] = run(checks[i], subject);
    } catch (...) {
      errors[worker] = std::current_exception();
    }
  };
  std::vector<std::thread> others;
  for (unsigned worker = 1; worker < jobs; ++worker) others.emplace_back(work, worker);
  work(0);
  for (std::thread& other : others) other.join();
  for (const std::exception_ptr& error : errors) {
    if (error) std::rethrow_exception(error);
  }
  return results;
}

}  // namespace vtlcmd::validator
