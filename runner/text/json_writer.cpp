#include "text/json_writer.h"

#include <nlohmann/json.hpp>

namespace vtlcmd::runner {

void JsonWriter::text(std::string_view value) {
  using nlohmann::json;
  raw(json(value).dump(-1, ' ', false, json::error_handler_t::replace));
}

}  // namespace vtlcmd::runner
