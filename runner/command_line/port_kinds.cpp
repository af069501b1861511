#include "command_line/port_kinds.h"

#include <algorithm>
#include <array>

#include "text/library_text.h"
#include "values/type_dispatch.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

constexpr PortKind textual{PortSource::text, ""};
constexpr PortKind unsupported{PortSource::nothing, "put a node like 'constant' in its place"};

struct Row {
  std::string_view type;
  PortKind kind;
};

constexpr std::array<Row, 3> withoutText{{
    {valueType<ObjectPtr>().name,
     {PortSource::defaultValue, "it is a new object or the graph's default"}},
    {valueType<Vantrel::Simulation::Time>().name,
     {PortSource::options, "it comes from --frames and --fps"}},
    {valueType<Vantrel::File::Project::SceneInfo>().name,
     {PortSource::options, "it comes from --scene and --secondary"}},
}};

}  // namespace

const PortKind& portKindOf(const ValueType& type) {
  if (type.depth > 0) return unsupported;
  const auto* const row = std::find_if(withoutText.begin(), withoutText.end(),
                                       [&](const Row& each) { return each.type == type.element; });
  if (row != withoutText.end()) return row->kind;
  const bool isRegistered = withTypeNamed(registeredTypes, type.element, []<typename T>() {});
  return isRegistered ? textual : unsupported;
}

std::vector<std::string> unsettablePorts(const Graph& graph, const TextsByPort& texts) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < graph.ports.size(); ++i) {
    const GraphPort& port = graph.ports[i];
    const PortKind& kind = portKindOf(port.type);
    const bool isUnset = kind.source == PortSource::nothing;
    const bool ignoresText = kind.source == PortSource::defaultValue && texts[i];
    if (!isUnset && !ignoresText) continue;
    lines.push_back(std::string(port.isJob ? "Job" : "input") + " port " + inQuotes(port.name) +
                    " (" + nameOf(port.type) + ") takes no text: " + std::string(kind.instead));
  }
  return lines;
}

}  // namespace vtlcmd::runner
