#include <vector>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::validator {
namespace {

/// A text for a port of three floats: how its value reads, or the pieces that its messages quote.
/// Neither means a wrong number of pieces.
struct VectorTextRow {
  const char* name;
  const char* text;
  const char* report;
  std::vector<const char*> badPieces;
};

const VectorTextRow vectorTextRows[]{
    {"plain", "1,2,3", "{1, 2, 3}", {}},
    {"blanks", "1, 2 ,\t3", "{1, 2, 3}", {}},
    {"floating", "1e3,0x10,-.5", "{1000, 16, -0.5}", {}},
    {"minus-zero", "-0,0,+0", "{-0, 0, 0}", {}},
    {"empty", "", nullptr, {}},
    {"two-pieces", "1,2", nullptr, {}},
    {"four-pieces", "1,2,3,4", nullptr, {}},
    {"trailing-comma", "1,2,3,", nullptr, {}},
    {"blank-separated", "1 2 3", nullptr, {}},
    {"semicolons", "1;2;3", nullptr, {}},
    {"single-number", "1", nullptr, {}},
    {"empty-piece", "1,,3", nullptr, {""}},
    {"bad-piece", "1,x,3", nullptr, {"x"}},
    {"bad-pieces", "a, b,c ", nullptr, {"a", " b", "c "}},
    {"printed-form", "{1, 2, 3}", nullptr, {"{1", " 3}"}},
    {"beyond-float", "1e39,0,0", nullptr, {"1e39"}},
    {"subnormal", "0,1e-40,0", nullptr, {"1e-40"}},
    {"not-finite", "inf,0,nan", nullptr, {"inf", "nan"}},
};

void expectAnswer(Session& session, const VectorTextRow& row) {
  const std::string prefix = "error Input port 'port' (Math::float3): ";
  std::vector<std::string> lines;
  if (row.report != nullptr) {
    lines = {std::string("verbose Set input port 'port': (Math::float3) ") + row.report};
  } else if (row.badPieces.empty()) {
    lines = {prefix + "Cannot extract Math::float3 value from '" + row.text +
             "': invalid number of vector components"};
  }
  for (const char* piece : row.badPieces)
    lines.push_back(prefix + "Unable to convert '" + piece + "' to a float value.");
  PortHost host(session);
  host.giveText(row.text);
  const bool answer = host.setInput(Orvel::typeOf<Math::float3>());
  expectLines("messages", host.messages(), lines);
  expect(answer == (row.report != nullptr), "the answer tells of the value");
  expect(host.value.holdsValue() == answer, "the result goes with it");
}

void doublesReachFurther(Session& session) {
  PortHost host(session);
  host.giveText("1e39,1e-300,0");
  expect(host.setInput(Orvel::typeOf<Math::double3>()), "the answer is true");
  const auto* held = anyCast<Math::double3>(&host.value);
  expect(held != nullptr && *held == Math::double3{{1e39, 1e-300, 0}}, "all 64 bits are there");
}

}  // namespace

void addVectorTextChecks(CheckList& checks) {
  for (const VectorTextRow& row : vectorTextRows) {
    checks.push_back({std::string("vector-text-") + row.name,
                      "A Math::float3 port takes or refuses such a text by the rules of vectors.",
                      [&row](Session& session) { expectAnswer(session, row); }});
  }
  checks.push_back({"vector-text-doubles", "A component of a double vector reaches beyond a float.",
                    doublesReachFurther});
}

}  // namespace vtlcmd::validator
