#pragma once

#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string_view>

#include "graph/json_place.h"

namespace vtlcmd::runner {

/// A JSON document that has been read whole.
class JsonDocument {
 public:
  /// Throws GraphError, which names the place: line and column for a text that is no JSON, else a
  /// path like `$.nodes[3]`. A key given twice in one object and a number beyond a double's range
  /// are errors.
  explicit JsonDocument(std::string_view text);
  ~JsonDocument();
  JsonDocument(const JsonDocument&) = delete;
  JsonDocument& operator=(const JsonDocument&) = delete;

  /// Valid as long as the document.
  JsonPlace root() const { return JsonPlace(*json_); }

 private:
  std::unique_ptr<const nlohmann::json> json_;
};

}  // namespace vtlcmd::runner
