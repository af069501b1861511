#include "journal/journal_lines.h"

#include <array>
#include <cstddef>

#include "execution/message_distribution.h"
#include "journal/content_hash.h"
#include "journal/crc32.h"
#include "journal/time_text.h"
#include "text/json_writer.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

constexpr std::size_t checksumDigits = 8;
constexpr std::string_view behindChecksum = "\",\"";
constexpr std::string_view behindKind = "\":";
/// Never part of a text, where quotes have a backslash before them.
constexpr std::string_view beforeTimes = ",\"times\":";

/// Of the bytes behind the checksum's comma.
std::string checksumOf(std::string_view bytes) {
  std::string digits;
  const std::uint32_t checksum = crc32(bytes);
  for (int shift = 28; shift >= 0; shift -= 4)
    digits += "0123456789abcdef"[(checksum >> shift) & 15U];
  return digits;
}

void writeOutputs(JsonWriter& json, const FrameRecord& record) {
  json.open('{');
  for (const auto& [name, output] : record.entry.outputs) {
    json.key(name);
    json.open('{');
    json.key("type");
    json.text(output.typeName);
    json.key("shown");
    json.boolean(output.valueShown);
    if (output.valueShown) {
      json.key("text");
      json.text(output.valueText);
    }
    if (const auto value = record.values.find(name); value != record.values.end()) {
      json.key("value");
      json.raw(value->second);
    }
    if (const auto picture = record.pictures.find(name); picture != record.pictures.end()) {
      json.key("picture");
      json.raw(picture->second);
    }
    json.close('}');
  }
  json.close('}');
}

/// By name, the hash of what is in a file; null of what can't be read.
void writeFiles(JsonWriter& json, const std::set<std::filesystem::path>& files) {
  json.open('{');
  for (const std::filesystem::path& file : files) {
    const std::optional<std::string> hash = contentHash(file);
    json.key(fileText(file));
    if (hash) {
      json.text(*hash);
    } else {
      json.null();
    }
  }
  json.close('}');
}

}  // namespace

std::string journalText(const JournalLine& line) {
  std::string body = "\"";
  body.append(line.kind).append(behindKind).append(line.content);
  body.append(beforeTimes).append(line.times).append("}");
  std::string text(journalOpening);
  return text.append(checksumOf(body)).append("\",").append(body).append("\n");
}

std::optional<JournalLine> parseJournalText(std::string_view text) {
  constexpr std::size_t kindPlace = journalOpening.size() + checksumDigits + behindChecksum.size();
  if (text.size() <= kindPlace || !text.starts_with(journalOpening) || !text.ends_with('}') ||
      text.substr(kindPlace - behindChecksum.size(), behindChecksum.size()) != behindChecksum)
    return std::nullopt;
  if (text.substr(journalOpening.size(), checksumDigits) != checksumOf(text.substr(kindPlace - 1)))
    return std::nullopt;
  const std::size_t kindEnd = text.find(behindKind, kindPlace);
  const std::size_t contentEnd = text.rfind(beforeTimes);
  if (kindEnd == std::string_view::npos || contentEnd == std::string_view::npos ||
      contentEnd < kindEnd + behindKind.size())
    return std::nullopt;
  const std::size_t contentPlace = kindEnd + behindKind.size();
  const std::size_t timesPlace = contentEnd + beforeTimes.size();
  return JournalLine{text.substr(kindPlace, kindEnd - kindPlace),
                     text.substr(contentPlace, contentEnd - contentPlace),
                     text.substr(timesPlace, text.size() - timesPlace - 1)};
}

std::string frameContent(const FrameRecord& record) {
  const ReportEntry& entry = record.entry;
  JsonWriter json;
  json.open('{');
  json.key("index");
  json.number(entry.frameIndex);
  json.key("frame");
  json.text(record.frameText);
  const auto writeFlag = [&json](std::string_view name, bool value) {
    json.key(name);
    json.boolean(value);
  };
  writeFlag("inputs_set", entry.inputsSet);
  writeFlag("executed", entry.executed);
  writeFlag("outputs_reported", entry.outputsReported);
  writeFlag("without_errors", entry.withoutErrors);
  writeFlag("interrupted", entry.interrupted);
  writeFlag("succeeded", record.succeeded());
  json.key("failure");
  json.text(failureNames[static_cast<std::size_t>(record.failure)]);
  json.key("graph_errors");
  json.number(record.errors);
  json.key("graph_warnings");
  json.number(record.warnings);
  if (!record.filesRead.empty()) {
    json.key("files");
    writeFiles(json, record.filesRead);
  }
  json.key("outputs");
  writeOutputs(json, record);
  json.key("messages");
  json.raw(messagesContent(entry.messages));
  json.close('}');
  return json.json();
}

std::string frameTimes(const FrameOutcome& outcome) {
  JsonWriter json;
  json.open('{');
  json.key("started");
  json.text(timeText(outcome.started));
  json.key("seconds");
  json.number(outcome.seconds);
  json.key("attempts");
  json.number(outcome.attempts);
  if (outcome.worker != 0) {
    json.key("worker");
    json.number(outcome.worker);
  }
  json.close('}');
  return json.json();
}

std::string messagesContent(const MessagesBySource& messages) {
  JsonWriter json;
  json.open('{');
  for (const auto& [source, levels] : messages) {
    json.key(sourceName(source));
    json.open('{');
    for (const auto& [level, texts] : levels) {
      json.key(levelName(level));
      json.open('[');
      for (const std::string& text : texts) json.text(text);
      json.close(']');
    }
    json.close('}');
  }
  json.close('}');
  return json.json();
}

}  // namespace vtlcmd::runner
