#include "process/run_check.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <nlohmann/json.hpp>

#include "checks/outcome.h"
#include "host/session.h"
#include "platform/child.h"

namespace vtlcmd::validator {
namespace {

using nlohmann::json;

/// Checks take milliseconds; machines that do much else take longer.
constexpr std::chrono::seconds timeLimit{20};

std::string utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

EndedChild startFor(const std::string& what, const Subject& subject) {
  return runSelf({runOneOption, what, "--seed", std::to_string(subject.seed), utf8(subject.plugIn)},
                 timeLimit);
}

void write(const json& line) {
  std::cout << line.dump(-1, ' ', true, json::error_handler_t::replace) << '\n';
}

/// The last line of the output, whatever the plug-in wrote before it.
json lastLine(const std::string& output) {
  const std::size_t end = output.find_last_not_of("\r\n");
  if (end == std::string::npos) return {};
  const std::size_t begin = output.rfind('\n', end);
  const std::size_t from = begin == std::string::npos ? 0 : begin + 1;
  return json::parse(output.substr(from, end + 1 - from), nullptr, false);
}

Result resultOf(const EndedChild& child) {
  if (child.end == EndedChild::End::timedOut)
    return {Outcome::timedOut, "no end after " + std::to_string(timeLimit.count()) + " s"};
  if (child.end == EndedChild::End::crashed) return {Outcome::crashed, child.reason};
  const json line = lastLine(child.output);
  if (!line.is_object()) return {Outcome::crashed, "the process ended without a result"};
  const std::string name = line.value("result", "");
  const auto* const known = std::find(outcomeNames.begin(), outcomeNames.end(), name);
  if (known == outcomeNames.end()) return {Outcome::failed, line.value("note", "")};
  return {static_cast<Outcome>(known - outcomeNames.begin()), line.value("note", "")};
}

}  // namespace

Result runHere(const Check& check, const Subject& subject) {
  try {
    Session session(subject.plugIn, subject.seed);
    check.run(session);
    return {Outcome::passed, {}};
  } catch (const Unloadable&) {
    throw;
  } catch (const Skipped& reason) {
    return {Outcome::skipped, reason.what()};
  } catch (const Warned& reason) {
    return {Outcome::warning, reason.what()};
  } catch (const Failed& reason) {
    return {Outcome::failed, reason.what()};
  } catch (const std::exception& error) {
    return {Outcome::failed, std::string("an exception came out: ") + error.what()};
  } catch (...) {
    return {Outcome::failed, "an exception of an unknown type came out"};
  }
}

Result runApart(const Check& check, const Subject& subject) {
  return resultOf(startFor(check.name, subject));
}

int runOne(const Check& check, const Subject& subject) {
  try {
    const Result result = runHere(check, subject);
    write({{"result", nameOf(result.outcome)}, {"note", result.note}});
  } catch (const Unloadable& reason) {
    write({{"result", "failed"}, {"note", std::string("can't be loaded: ") + reason.what()}});
  }
  return 0;
}

std::string loadErrorHere(const Subject& subject) {
  try {
    const PlugIn plugIn(subject.plugIn);
    return {};
  } catch (const Unloadable& reason) {
    return reason.what();
  }
}

int runLoad(const Subject& subject) {
  const std::string error = loadErrorHere(subject);
  write({{"result", error.empty() ? "passed" : "failed"}, {"note", error}});
  return 0;
}

std::string loadError(const Subject& subject) { return resultOf(startFor(loadOnly, subject)).note; }

}  // namespace vtlcmd::validator
