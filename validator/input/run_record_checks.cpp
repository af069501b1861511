#include <iterator>
#include <limits>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/port_host.h"
#include "values/arrays.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::validator {
namespace {

using Vantrel::File::Project::SceneInfo;
using Vantrel::Simulation::Time;

void timeIsBuilt(Session& session) {
  for (const bool isJobPort : {false, true}) {
    PortHost host(session);
    host.context.frame = 1;
    host.context.time = 0.5;
    host.context.frameLength = 0.5;
    const auto old = arrayOf<double>({1});
    host.value = makeAny(old);
    // No text ever fills it.
    host.giveText("7");
    host.giveJobText("7");
    expect(host.setInput(Orvel::typeOf<Time>(), isJobPort), "the answer is true");
    const auto* time = anyCast<Time>(&host.value);
    expect(time != nullptr, "the result holds a Simulation::Time");
    expect(time->mode == 1 && time->time == 0.5 && time->frame == 1 && time->frameLength == 0.5,
           "the record has mode 1 and what the context says");
    expect(Orvel::useCount(old) == 1, "the old value has ended");
    expectLines("messages", host.messages(), {"verbose Frame: 1 | Time: 0.5s (fps=2)"});
  }
}

void timeTextHasSixDigits(Session& session) {
  PortHost host(session);
  host.context.frame = 1234567.5;
  host.context.time = 0.00001234567;
  host.context.frameLength = 3;
  expect(host.setInput(Orvel::typeOf<Time>()), "the answer is true");
  expectLines("messages", host.messages(),
              {"verbose Frame: 1.23457e+06 | Time: 1.23457e-05s (fps=0.333333)"});
}

void frameLengthIsRefused(Session& session, double length, const char* text) {
  PortHost host(session);
  host.context.frameLength = length;
  host.value = makeAny<std::int32_t>(5);
  expect(!host.setInput(Orvel::typeOf<Time>()), "the answer is false");
  const auto* held = anyCast<std::int32_t>(&host.value);
  expect(held != nullptr && *held == 5, "the result is as it was");
  expectLines("messages", host.messages(), {std::string("error Invalid frame length: ") + text});
}

void nanFrameLengthPasses(Session& session) {
  PortHost host(session);
  host.context.frameLength = std::numeric_limits<double>::quiet_NaN();
  expect(host.setInput(Orvel::typeOf<Time>()), "the answer is true");
  expect(host.messages().size() == 1 && host.messages().front().starts_with("verbose Frame: 0"),
         "the verbose line is there");
}

struct SceneRow {
  const char* name;
  const wchar_t* sceneFile;
  const char* fileName;
  const char* directory;
};

constexpr SceneRow sceneRows[]{
    {"plain", L"/jobs/a/scene.txt", "scene.txt", "/jobs/a/"},
    {"backslashes", L"C:\\jobs\\scene.txt", "scene.txt", "C:\\jobs\\"},
    {"mixed-separators", L"C:\\jobs/a\\b/scene", "scene", "C:\\jobs/a\\b/"},
    {"no-directory", L"scene.txt", "scene.txt", ""},
    {"trailing-separator", L"/jobs/a/", "", "/jobs/a/"},
    {"root", L"/", "", "/"},
    {"drive-root", L"C:\\", "", "C:\\"},
    {"drive-relative", L"C:scene.txt", "scene.txt", "C:"},
    {"empty", L"", "", ""},
};

void expectScene(const Any& value, const SceneRow& row, const char* secondary) {
  const auto* scene = anyCast<SceneInfo>(&value);
  expect(scene != nullptr, "the result holds a File::Project::SceneInfo");
  expectText("file name", scene->fileName.c_str(), row.fileName);
  expectText("directory", scene->directory.c_str(), row.directory);
  expectText("secondary path", scene->secondaryPath.c_str(), secondary);
  expect(scene->hasSecondaryPath == (*secondary != 0), "hasSecondaryPath tells of the second path");
}

void sceneIsSplit(Session& session, const SceneRow& row) {
  for (const bool isJobPort : {false, true}) {
    PortHost host(session);
    host.context.sceneFile = row.sceneFile;
    expect(host.setInput(Orvel::typeOf<SceneInfo>(), isJobPort), "the answer is true");
    expectScene(host.value, row, "");
    expectLines("messages", host.messages(), {});
  }
}

void secondaryPathIsWhole(Session& session) {
  PortHost host(session);
  host.context.sceneFile = L"a";
  host.context.secondaryPath = L"/other/b/";
  const auto old = arrayOf<double>({1});
  host.value = makeAny(old);
  expect(host.setInput(Orvel::typeOf<SceneInfo>()), "the answer is true");
  expectScene(host.value, {"", L"", "a", ""}, "/other/b/");
  expect(Orvel::useCount(old) == 1, "the old value has ended");
}

void copiesStandAlone(Session& session) {
  Any copy;
  {
    PortHost host(session);
    host.context.sceneFile = L"/a/b";
    expect(host.setInput(Orvel::typeOf<SceneInfo>()), "the answer is true");
    copy = host.value;
    expect(anyCast<SceneInfo>(&copy) != anyCast<SceneInfo>(&host.value),
           "a copy has its own block");
  }
  expectScene(copy, {"", L"", "b", "/a/"}, "");
  const void* block = anyCast<SceneInfo>(&copy);
  const Any moved = std::move(copy);
  expect(anyCast<SceneInfo>(&moved) == block, "a moved record keeps its address");
}

}  // namespace

void addRunRecordChecks(CheckList& checks) {
  checks.push_back(
      {"time-record", "A Simulation::Time is what the context says, on any port.", timeIsBuilt});
  checks.push_back(
      {"time-text", "The line of a time has six significant digits.", timeTextHasSixDigits});
  checks.push_back({"time-zero-length", "A frame length of 0 is refused and the result kept.",
                    [](Session& session) { frameLengthIsRefused(session, 0, "0"); }});
  checks.push_back({"time-minus-zero-length", "A frame length of -0 is refused.",
                    [](Session& session) { frameLengthIsRefused(session, -0.0, "-0"); }});
  checks.push_back({"time-negative-length", "A negative frame length is refused.",
                    [](Session& session) { frameLengthIsRefused(session, -1, "-1"); }});
  checks.push_back(
      {"time-nan-length", "A frame length that is no number is taken.", nanFrameLengthPasses});
  for (const SceneRow& row : sceneRows) {
    checks.push_back({std::string("scene-") + row.name,
                      "Such a scene file is split behind its last separator, in silence.",
                      [&row](Session& session) { sceneIsSplit(session, row); }});
  }
  checks.push_back(
      {"scene-secondary-path", "The second path of a scene is kept whole.", secondaryPathIsWhole});
  checks.push_back({"scene-copies",
                    "A scene's copies own their texts, a moved one keeps its block.",
                    copiesStandAlone});
}

}  // namespace vtlcmd::validator
