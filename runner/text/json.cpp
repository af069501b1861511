#include "text/json.h"

namespace vtlcmd::runner {

Json parseJson(std::string_view text) { return Json::parse(text); }

}  // namespace vtlcmd::runner
