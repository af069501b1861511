#include "journal/run_journal.h"

#include <utility>

#include "journal/journal_lines.h"
#include "journal/time_text.h"
#include "text/json_writer.h"

namespace vtlcmd::runner {
namespace {

std::string timeNow(std::string_view what, unsigned worker = 0) {
  JsonWriter json;
  json.open('{');
  json.key(what);
  json.text(timeText(std::chrono::system_clock::now()));
  if (worker != 0) {
    json.key("worker");
    json.number(worker);
  }
  json.close('}');
  return json.json();
}

}  // namespace

RunJournal::RunJournal(JournalFile file, const std::string& runContent, const std::string& runTimes)
    : file_(std::move(file)) {
  file_.append(journalText({line_kinds::run, runContent, runTimes}));
}

void RunJournal::startFrame(std::size_t index, const std::string& frame, unsigned worker) {
  JsonWriter json;
  json.open('{');
  json.key("index");
  json.number(index);
  json.key("frame");
  json.text(frame);
  json.close('}');
  file_.append(journalText({line_kinds::start, json.json(), timeNow("started", worker)}));
}

void RunJournal::addFrame(const std::string& content, const std::string& times) {
  file_.append(journalText({line_kinds::frame, content, times}));
}

void RunJournal::end(const RunEnd& end) {
  JsonWriter json;
  json.open('{');
  json.key("outcome");
  json.text(end.outcome);
  json.key("exit_code");
  json.number(end.exitCode);
  json.key("messages");
  json.raw(messagesContent(end.messages));
  json.close('}');
  file_.append(journalText({line_kinds::end, json.json(), timeNow("ended")}));
}

}  // namespace vtlcmd::runner
