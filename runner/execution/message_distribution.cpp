#include "execution/message_distribution.h"

namespace vtlcmd::runner {

void distributeMessages(VtlCmdLogger& logger) {
  for (const LogMessage& message : logger.messages) {
    MessagesBySource& messages = logger.messagesFor(message.groupIndex, message.entryIndex);
    messages[message.source][message.level].push_back(message.text);
  }
}

std::string sourceName(LogSource source) {
  return source == vtlcmdSource    ? "vtlcmd"
         : source == vantrelSource ? "graph"
                                   : std::to_string(source);
}

std::string levelName(LogLevel level) {
  return level < VtlCmdLogger::levelNames.size() ? VtlCmdLogger::levelNames[level]
                                                 : std::to_string(level);
}

}  // namespace vtlcmd::runner
