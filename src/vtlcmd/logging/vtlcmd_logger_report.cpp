#include <utility>

#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd {
namespace {

/// Adds a port's report or replaces it where it stands. Nothing has changed when memory fails.
void setReport(std::map<std::string, OutputReport>& outputs, const char* name, const char* typeName,
               const char* valueText, bool valueShown) {
  const auto found = outputs.find(name);
  if (found == outputs.end()) {
    outputs.emplace(name, OutputReport{typeName, valueText, valueShown});
    return;
  }
  OutputReport& report = found->second;
  std::string ownTypeName = typeName;
  report.valueText = valueText;
  report.typeName = std::move(ownTypeName);
  report.valueShown = valueShown;
}

}  // namespace

void VtlCmdLogger::beginGroup(const std::string& name) {
  std::string ownName = name;
  groups.emplace_back();
  currentGroupIndex = groups.size() - 1;
  groups.back().name = std::move(ownName);
  currentEntryIndex = noCurrent;
}

void VtlCmdLogger::endGroup() noexcept {
  currentGroupIndex = noCurrent;
  currentEntryIndex = noCurrent;
}

void VtlCmdLogger::beginEntry(const RunDescription& description) {
  if (ReportGroup* group = currentGroup()) {
    group->entries.emplace_back(description);
    currentEntryIndex = group->entries.size() - 1;
    return;
  }
  RunDescription ownDescription = description;
  static_cast<RunDescription&>(fallbackEntry) = std::move(ownDescription);
}

void VtlCmdLogger::endEntry() noexcept { currentEntryIndex = noCurrent; }

ReportEntry& VtlCmdLogger::currentEntry() noexcept {
  ReportGroup* group = currentGroup();
  if (group == nullptr || currentEntryIndex >= group->entries.size()) return fallbackEntry;
  return group->entries[currentEntryIndex];
}

ReportGroup* VtlCmdLogger::currentGroup() noexcept {
  return currentGroupIndex < groups.size() ? &groups[currentGroupIndex] : nullptr;
}

MessagesBySource& VtlCmdLogger::messagesFor(std::uint64_t groupIndex,
                                            std::uint64_t entryIndex) noexcept {
  if (groupIndex >= groups.size()) return fallbackEntry.messages;
  ReportGroup& group = groups[groupIndex];
  if (entryIndex >= group.entries.size()) return group.messages;
  return group.entries[entryIndex].messages;
}

void VtlCmdLogger::reportOutputValue(const char* name, const char* typeName,
                                     const char* valueText) {
  setReport(currentEntry().outputs, name, typeName, valueText, true);
}

void VtlCmdLogger::reportOutputSuppressed(const char* name, const char* typeName) {
  setReport(currentEntry().outputs, name, typeName, "", false);
}

void VtlCmdLogger::setLoaded(bool value) noexcept {
  if (ReportGroup* group = currentGroup()) group->loaded = value;
}

void VtlCmdLogger::setFinished(bool value) noexcept {
  if (ReportGroup* group = currentGroup()) group->finished = value;
}

}  // namespace vtlcmd
