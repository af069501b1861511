#include "report/message_list.h"

#include <algorithm>
#include <ostream>
#include <set>

#include "report/frame_facts.h"
#include "report/html_text.h"

namespace vtlcmd::runner {
namespace {

/// Of texts that a page has room for.
constexpr std::uint64_t mostBytes = 400'000;

bool isProblem(const std::string& level) {
  return std::find(problemLevels.begin(), problemLevels.end(), level) != problemLevels.end();
}

/// What the report says of a frame's outputs, which have their own place in a page.
std::set<std::string> outputMessages(const Json& outputs) {
  std::set<std::string> messages;
  for (const auto& [name, output] : outputs.items()) {
    if (!output.at("shown")) continue;
    messages.insert("Output port '" + name + "': (" + output.at("type").get<std::string>() + ") " +
                    output.at("text").get<std::string>());
  }
  return messages;
}

void writeFrames(std::ostream& page, const char* state, const FrameRanges& frames) {
  if (frames.count() == 0) return;
  page << "<p class='" << state << "'>" << counted(frames.count(), "frame") << ' ' << state << ": "
       << htmlText(frames.text()) << "</p>\n";
}

}  // namespace

void MessageList::add(const PageFrame& frame) {
  const std::set<std::string> ofOutputs = outputMessages(frame.content.at("outputs"));
  if (frame.content.at("interrupted")) {
    interrupted_.add(frame.index, frame.text);
  } else if (!frame.content.at("succeeded")) {
    failed_.add(frame.index, frame.text);
  }
  for (const auto& [source, levels] : frame.content.at("messages").items()) {
    for (const auto& [level, texts] : levels.items()) {
      for (const Json& text : texts) {
        if (ofOutputs.contains(text)) continue;
        if (Message* message = find(level, source, text))
          message->frames.add(frame.index, frame.text);
      }
    }
  }
}

void MessageList::addOfRun(const Json& messages) {
  for (const auto& [source, levels] : messages.items()) {
    for (const auto& [level, texts] : levels.items()) {
      for (const Json& text : texts) find(level, source, text);
    }
  }
}

MessageList::Message* MessageList::find(const std::string& level, const std::string& source,
                                        const std::string& text) {
  const std::string key = level + '\n' + source + '\n' + text;
  const auto known = places_.find(key);
  if (known != places_.end()) return &messages_[known->second];
  Use& use = isProblem(level) ? problems_ : others_;
  if (use.bytes + key.size() > mostBytes) {
    ++use.leftOut;
    return nullptr;
  }
  use.bytes += key.size();
  places_.emplace(key, messages_.size());
  return &messages_.emplace_back(Message{level, source, text, {}});
}

void MessageList::writeProblems(std::ostream& page, const std::string& missing) const {
  if (problems_.bytes == 0 && failed_.count() == 0 && interrupted_.count() == 0 && missing.empty())
    return;
  page << "<section class='problems'><h2>Problems</h2>\n";
  writeFrames(page, "failed", failed_);
  writeFrames(page, "interrupted", interrupted_);
  if (!missing.empty())
    page << "<p class='failed'>Frames missing: " << htmlText(missing) << "</p>\n";
  page << "<table class='log'>\n";
  for (const std::string_view level : problemLevels) {
    for (const Message& message : messages_) {
      if (message.level == level) writeMessage(page, message);
    }
  }
  writeLeftOut(page, problems_);
  page << "</table></section>\n";
}

void MessageList::writeOthers(std::ostream& page) const {
  if (others_.bytes == 0) return;
  page << "<section><h2>Messages</h2>\n<details><summary>All but the problems</summary>"
          "<table class='log'>\n";
  for (const Message& message : messages_) {
    if (!isProblem(message.level)) writeMessage(page, message);
  }
  writeLeftOut(page, others_);
  page << "</table></details></section>\n";
}

void MessageList::writeMessage(std::ostream& page, const Message& message) {
  const std::string level = htmlText(message.level);
  page << "<tr class='" << level << "'><th>" << htmlText(message.frames.text()) << "<td><b>"
       << level << "</b> <span class='type'>[" << htmlText(message.source)
       << "]</span><td class='text'>" << htmlText(message.text) << '\n';
}

void MessageList::writeLeftOut(std::ostream& page, const Use& use) {
  if (use.leftOut > 0)
    page << "<tr class='none'><th>…<td><td>" << counted(use.leftOut, "message")
         << " more in the journal\n";
}

}  // namespace vtlcmd::runner
