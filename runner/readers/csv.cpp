#include "readers/csv.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

#include "readers/read_error.h"
#include "readers/text_lines.h"
#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

/// Takes a field in quotes off a line; two quotes inside mean one.
std::string takeQuoted(std::string_view& line) {
  std::string field;
  line.remove_prefix(1);
  for (;;) {
    const std::size_t quote = line.find('"');
    if (quote == std::string_view::npos) throw ReadError("a quote has no end");
    field += line.substr(0, quote);
    line.remove_prefix(quote + 1);
    if (!line.starts_with('"')) return field;
    field += '"';
    line.remove_prefix(1);
  }
}

std::vector<std::string> fieldsOf(std::string_view line) {
  std::vector<std::string> fields;
  for (;;) {
    line = trimmed(line);
    const bool isQuoted = line.starts_with('"');
    std::string field = isQuoted ? takeQuoted(line) : std::string();
    const std::string_view rest = trimmed(line.substr(0, line.find(',')));
    if (isQuoted && !rest.empty()) throw ReadError("there is more behind a quoted field");
    fields.push_back(isQuoted ? std::move(field) : std::string(rest));
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) return fields;
    line.remove_prefix(comma + 1);
  }
}

std::optional<double> numberIn(std::string_view field) {
  if (field.starts_with('+')) field.remove_prefix(1);
  double number = 0;
  const char* const end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

void readRow(Table& table, const std::vector<std::string>& fields) {
  const bool isFirst = table.columns == 0;
  if (isFirst) table.columns = fields.size();
  if (fields.size() != table.columns) {
    throw ReadError("there are " + std::to_string(fields.size()) + " fields, not " +
                    std::to_string(table.columns));
  }
  if (isFirst && !std::all_of(fields.begin(), fields.end(),
                              [](const std::string& field) { return numberIn(field); })) {
    table.names = fields;
    return;
  }
  for (const std::string& field : fields) {
    const std::optional<double> number = numberIn(field);
    if (!number) throw ReadError(inQuotes(field) + " is no number");
    table.numbers.push_back(*number);
  }
}

}  // namespace

Table parseCsv(ByteSource& file) {
  Table table;
  TextLines lines(file);
  for (std::string line; lines.next(line);) {
    if (trimmed(line).empty()) continue;
    try {
      readRow(table, fieldsOf(line));
    } catch (const ReadError& error) {
      throw ReadError("line " + std::to_string(lines.number()) + ": " + error.what());
    }
  }
  if (table.numbers.empty()) throw ReadError("there are no numbers in it");
  return table;
}

}  // namespace vtlcmd::runner
