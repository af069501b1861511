#include "text/json_writer.h"

#include "text/json.h"
#include "text/json_text.h"

namespace vtlcmd::runner {

void JsonWriter::text(std::string_view value) { raw(jsonText(value)); }

}  // namespace vtlcmd::runner
