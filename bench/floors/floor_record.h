#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "floors/texts.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::bench {

/// What the floors look handlers up in, with the keys and orders of the plug-in's.
struct FloorTables {
  FloorTables() {
    forEachRow(registeredTypes, [this]<typename T>(const RegisteredType<T>& row) {
      byName[row.name] = true;
      byTag[&typeTag<T, 0>] = true;
      byTag[&typeTag<T, 1>] = true;
      byTag[&typeTag<T, 2>] = true;
      byTag[&typeTag<T, 3>] = true;
    });
  }

  std::map<Orvel::String, bool, StringOrder> byName;
  std::map<const Orvel::Internal::TypeInfo*, bool, TagOrder> byTag;
};

/// Where the floors leave their messages and reports.
struct FloorRecord {
  FloorTables tables;
  std::vector<LogMessage> messages;
  std::map<std::string, OutputReport> outputs;

  /// The record has a copy of the text, as the logger's has.
  void add(LogLevel level, const std::string& text) {
    messages.push_back(
        {vtlcmdSource, level, text, VtlCmdLogger::noCurrent, VtlCmdLogger::noCurrent});
  }

  void report(const char* portName, std::string_view typeWord, std::string_view text) {
    const std::string line = concatenate({"Output port '", portName, "': (", typeWord, ") ", text});
    OutputReport& report = outputs[portName];
    report.typeName = typeWord;
    report.valueText = text;
    report.valueShown = true;
    add(levelProgress, line);
  }
};

}  // namespace vtlcmd::bench
