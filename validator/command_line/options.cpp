#include "command_line/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <random>
#include <regex>
#include <thread>

#include "process/run_check.h"

namespace vtlcmd::validator {
namespace {

constexpr int usageError = 2;

std::string regexError(const std::string& text) {
  try {
    const std::regex expression(text);
    return {};
  } catch (const std::regex_error&) {
    return "'" + text + "' is no regular expression";
  }
}

}  // namespace

ReadOptions readOptions(const std::vector<std::string>& words) {
  Options options;
  options.seed = std::random_device{}();
  options.jobs = std::max(1U, std::thread::hardware_concurrency());
  CLI::App app("Checks builds of the plug-in through their one export.", "vtlcmd-validate");
  // A path may begin so.
  app.allow_windows_style_options(false);
  const CLI::Validator isRegex(regexError, "REGEX");
  app.add_flag("--json", options.json, "Write one JSON document to standard output");
  app.add_option("--only", options.only, "Make the checks in whose name REGEX is found")
      ->option_text("REGEX")
      ->check(isRegex);
  app.add_option("--skip", options.skip, "Leave out the checks in whose name REGEX is found")
      ->option_text("REGEX")
      ->check(isRegex);
  app.add_flag("--list", options.list, "Say which checks there are, and make none");
  app.add_option("--jobs", options.jobs, "Make so many checks at once")
      ->option_text("N")
      ->check(CLI::Range(1U, 256U));
  app.add_flag("--in-process", options.inProcess,
               "Make all checks in this process, one by one: a crash ends it");
  app.add_option("--seed", options.seed, "Repeat the random checks of a run that told this seed")
      ->option_text("N");
  app.add_option(runOneOption, options.runOne)->group("");
  app.set_version_flag("--version", VTLCMD_VERSION);
  app.add_option("plugins", options.plugIns, "Files of the plug-in")->option_text("PLUGIN...");
  try {
    app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    if (options.plugIns.empty() && !options.list) throw CLI::RequiredError("PLUGIN");
    return {options, std::nullopt};
  } catch (const CLI::Success& success) {
    return {options, app.exit(success)};
  } catch (const CLI::ParseError& error) {
    app.exit(error);
    return {options, usageError};
  }
}

CheckList selected(const CheckList& checks, const std::string& only, const std::string& skip) {
  const std::regex wanted(only);
  const std::regex unwanted(skip);
  CheckList result;
  std::copy_if(checks.begin(), checks.end(), std::back_inserter(result), [&](const Check& check) {
    return std::regex_search(check.name, wanted) &&
           (skip.empty() || !std::regex_search(check.name, unwanted));
  });
  return result;
}

}  // namespace vtlcmd::validator
