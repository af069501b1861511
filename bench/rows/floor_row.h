#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "floors/floor_record.h"
#include "measuring/row.h"
#include "plug_in_host/host.h"
#include "plug_in_host/plug_in.h"

namespace vtlcmd::bench {

/// What both sides of a row work with: the plug-in, and the records of each.
struct FloorSetup {
  explicit FloorSetup(std::shared_ptr<PlugIn> loaded, std::uint32_t printLimit = 10)
      : plugIn(std::move(loaded)), host(printLimit) {}

  std::shared_ptr<PlugIn> plugIn;
  Host host;
  FloorRecord floor;
};

inline bool sameTexts(const VtlCmdLogger& logger, const FloorRecord& floor) {
  return std::equal(logger.messages.begin(), logger.messages.end(), floor.messages.begin(),
                    floor.messages.end(),
                    [](const LogMessage& a, const LogMessage& b) {
                      return a.level == b.level && a.text == b.text;
                    }) &&
         std::equal(logger.fallbackEntry.outputs.begin(), logger.fallbackEntry.outputs.end(),
                    floor.outputs.begin(), floor.outputs.end(), [](const auto& a, const auto& b) {
                      return a.first == b.first && a.second.typeName == b.second.typeName &&
                             a.second.valueText == b.second.valueText;
                    });
}

/// A row that compares one call of each side, `call(setup)`. Throws std::logic_error when they
/// leave different messages or reports behind.
template <typename Setup, typename Subject, typename Limit>
TimedRow floorRow(std::string name, std::shared_ptr<Setup> setup, Subject subject, Limit limit) {
  subject(*setup);
  limit(*setup);
  if (setup->host.logger.messages.empty() || !sameTexts(setup->host.logger, setup->floor)) {
    throw std::logic_error(name + ": the floor writes other texts");
  }
  TimedRow row;
  row.name = std::move(name);
  row.goal = 1.25;
  row.calls = 300;
  row.pairs = 201;
  row.subject = [setup, subject](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) subject(*setup);
  };
  row.limit = [setup, limit](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) limit(*setup);
  };
  row.prepare = [setup] {
    setup->host.logger.messages.clear();
    setup->floor.messages.clear();
  };
  return row;
}

}  // namespace vtlcmd::bench
