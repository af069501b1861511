#include "platform/program.h"

namespace vtlcmd::validator {

std::vector<std::string> commandLineWords(int count, char** words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

void prepareProcess() {}

}  // namespace vtlcmd::validator
