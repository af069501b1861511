#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>

#include "command_line/options.h"
#include "platform/program.h"
#include "process/run_checks.h"
#include "report/report.h"

namespace {

using namespace vtlcmd::validator;

enum ExitCode : int { good = 0, bad = 1, usage = 2, unloadable = 3 };

Subject subjectOf(const std::string& plugIn, const Options& options) {
  const std::filesystem::path file(std::u8string(plugIn.begin(), plugIn.end()));
  // Loaders that know both separators want the platform's own.
  return {std::filesystem::absolute(file).make_preferred(), options.seed};
}

int runOneOf(const CheckList& checks, const Options& options) {
  const Subject subject = subjectOf(options.plugIns.at(0), options);
  if (options.runOne == loadOnly) return runLoad(subject);
  const auto check = std::find_if(checks.begin(), checks.end(), [&](const Check& candidate) {
    return candidate.name == options.runOne;
  });
  return check == checks.end() ? ExitCode::usage : runOne(*check, subject);
}

int list(const CheckList& checks) {
  for (const Check& check : checks) std::cout << check.name << ": " << check.promise << '\n';
  return ExitCode::good;
}

PlugInReport validate(const std::string& plugIn, const CheckList& checks, const Options& options) {
  const Subject subject = subjectOf(plugIn, options);
  const std::string error = options.inProcess ? loadErrorHere(subject) : loadError(subject);
  if (!error.empty()) return {plugIn, error, {}};
  return {plugIn,
          {},
          options.inProcess ? runChecks(checks, subject, 1, runHere)
                            : runChecks(checks, subject, options.jobs, runApart)};
}

int validateAll(const CheckList& checks, const Options& options) {
  std::vector<PlugInReport> reports;
  int code = ExitCode::good;
  for (const std::string& plugIn : options.plugIns) {
    reports.push_back(validate(plugIn, checks, options));
    const PlugInReport& report = reports.back();
    if (!report.loadError.empty()) {
      std::cerr << "vtlcmd-validate: " << plugIn << " can't be loaded: " << report.loadError
                << '\n';
      code = ExitCode::unloadable;
      continue;
    }
    if (!isGood(report)) code = std::max<int>(code, ExitCode::bad);
    if (!options.json) std::cout << textReport(checks, report);
  }
  if (options.json) {
    std::cout << jsonReport(checks, reports, options.seed);
  } else {
    std::cout << "seed " << options.seed << '\n';
  }
  return code;
}

}  // namespace

int main(int count, char** words) try {
  prepareProcess();
  const ReadOptions read = readOptions(commandLineWords(count, words));
  if (read.exitCode) return *read.exitCode;
  const CheckList all = allChecks();
  if (!read.options.runOne.empty()) return runOneOf(all, read.options);
  const CheckList checks = selected(all, read.options.only, read.options.skip);
  if (checks.empty()) {
    std::cerr << "vtlcmd-validate: no check has such a name\n";
    return ExitCode::usage;
  }
  const int code = read.options.list ? list(checks) : validateAll(checks, read.options);
  std::cout.flush();
  if (!std::cout) {
    std::cerr << "vtlcmd-validate: the standard output can't be written\n";
    return std::max<int>(code, ExitCode::bad);
  }
  return code;
} catch (const std::exception& error) {
  std::cerr << "vtlcmd-validate: " << error.what() << '\n';
  return 1;
}
