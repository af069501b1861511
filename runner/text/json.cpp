#include "text/json.h"

template class nlohmann::basic_json<nlohmann::ordered_map>;

namespace vtlcmd::runner {

Json parseJson(std::string_view text) { return Json::parse(text); }

}  // namespace vtlcmd::runner
