#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd {
namespace {

constexpr const char* vtlcmdPrefix = "[vtlcmd]  ";
constexpr const char* vantrelPrefix = "[Vantrel] ";

/// By level; a level without a row has no prefix at all.
constexpr std::array<const char*, 7> levelPrefixes{
    nullptr, "Critical: ", "Error:    ", "Warning:  ", "          ", "          ", "          "};

}  // namespace

VtlCmdLogger::~VtlCmdLogger() = default;

void VtlCmdLogger::addMessage(LogSource source, LogLevel level, const std::string& text) {
  messages.push_back({source, level, text, currentGroupIndex, currentEntryIndex});
  if (!countingEnabled || source != vantrelSource) return;
  if (level == levelCritical || level == levelError) {
    ++errorCount;
  } else if (level == levelWarning) {
    ++warningCount;
  }
}

std::string VtlCmdLogger::makeMessagePrefix(LogSource source, LogLevel level) {
  if (level >= levelPrefixes.size() || levelPrefixes[level] == nullptr) return {};
  return std::string(source == vtlcmdSource ? vtlcmdPrefix : vantrelPrefix) + levelPrefixes[level];
}

void VtlCmdLogger::addVantrelMessage(std::uint16_t severity, const std::string& text) {
  const LogLevel level = severity == 1 ? levelError : severity == 2 ? levelWarning : levelVerbose;
  addMessage(vantrelSource, level, text);
}

void VtlCmdLogger::addVantrelMessage(std::int32_t severity, const std::string& text) {
  const LogLevel level = severity == 0 ? levelError : severity == 1 ? levelWarning : levelVerbose;
  addMessage(vantrelSource, level, text);
}

bool VtlCmdLogger::levelAdmits(std::int16_t level, std::uint32_t severityIndex) noexcept {
  return level >= levelCritical && level <= levelDebug &&
         severityIndex < static_cast<std::uint32_t>(level);
}

void VtlCmdLogger::reset() {
  countingEnabled = false;
  warningCount = 0;
  errorCount = 0;
  texts.clear();
  fallbackEntry = ReportEntry{};
  groups.clear();
  currentGroupIndex = noCurrent;
  currentEntryIndex = noCurrent;
}

void VtlCmdLogger::addTexts(const Orvel::Array<Orvel::String>& array) {
  texts.reserve(array.size);
  for (const Orvel::String& text : array) texts.emplace_back(text.c_str());
}

}  // namespace vtlcmd
