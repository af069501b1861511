#include "translation/null_data.h"

#include <iostream>

#include "logging/vtlcmd_logger.h"

namespace vtlcmd {

void reportNullData() {
  std::cerr << VtlCmdLogger::makeMessagePrefix(vtlcmdSource, levelCritical)
            << "The TypeTranslation ValueData is null." << std::endl;
}

}  // namespace vtlcmd
