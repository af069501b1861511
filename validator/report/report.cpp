#include "report/report.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace vtlcmd::validator {
namespace {

using nlohmann::ordered_json;

std::array<std::size_t, outcomeNames.size()> counts(const std::vector<Result>& results) {
  std::array<std::size_t, outcomeNames.size()> numbers{};
  for (const Result& result : results) ++numbers[static_cast<std::size_t>(result.outcome)];
  return numbers;
}

/// On one line, without what would steer a terminal.
std::string onOneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](unsigned char byte) { return byte < ' ' || byte == 127; }, ' ');
  return text;
}

}  // namespace

bool isGood(const PlugInReport& report) {
  return report.loadError.empty() &&
         std::none_of(report.results.begin(), report.results.end(),
                      [](const Result& result) { return isBad(result.outcome); });
}

std::string textReport(const CheckList& checks, const PlugInReport& report) {
  std::string text;
  for (std::size_t i = 0; i < report.results.size(); ++i) {
    const Result& result = report.results[i];
    if (result.outcome == Outcome::passed) continue;
    text += std::string(nameOf(result.outcome)) + " " + checks[i].name + ": " + checks[i].promise +
            "\n  " + onOneLine(result.note) + '\n';
  }
  text += onOneLine(report.plugIn) + ": ";
  const auto numbers = counts(report.results);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i == 0 || numbers[i] != 0)
      text += (i == 0 ? "" : ", ") + std::to_string(numbers[i]) + " " + outcomeNames[i];
  }
  return text + " of " + std::to_string(report.results.size()) + " checks\n";
}

std::string jsonReport(const CheckList& checks, const std::vector<PlugInReport>& reports,
                       std::uint64_t seed) {
  ordered_json plugIns = ordered_json::array();
  for (const PlugInReport& report : reports) {
    ordered_json rows = ordered_json::array();
    for (std::size_t i = 0; i < report.results.size(); ++i) {
      rows.push_back({{"name", checks[i].name},
                      {"promise", checks[i].promise},
                      {"result", nameOf(report.results[i].outcome)},
                      {"note", report.results[i].note}});
    }
    ordered_json row{{"plugIn", report.plugIn}, {"good", isGood(report)}};
    if (!report.loadError.empty()) row["loadError"] = report.loadError;
    row["checks"] = std::move(rows);
    plugIns.push_back(std::move(row));
  }
  const ordered_json document{{"seed", seed}, {"plugIns", std::move(plugIns)}};
  return document.dump(2, ' ', false, ordered_json::error_handler_t::replace) + '\n';
}

}  // namespace vtlcmd::validator
