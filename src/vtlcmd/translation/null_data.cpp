#include "vtlcmd/translation/null_data.h"

#include <iostream>

#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd {

void reportNullData() {
  std::cerr << VtlCmdLogger::makeMessagePrefix(vtlcmdSource, levelCritical)
            << "The TypeTranslation ValueData is null." << std::endl;
}

}  // namespace vtlcmd
