#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

#include "vtlcmd/host/host_records.h"
#include "vtlcmd/translation/entry.h"
#include "vtlcmd/translation/vtlcmd_type_translation.h"
#include "workers/sudden_ends.h"

// The plug-in, but for some frames of a run: the environment says like "3=crash,5=exit" what
// happens when the first output of a frame is to be reported. "load=crash" happens when the plug-in
// is loaded for the second time, by a worker.

namespace vtlcmd::failing {
namespace {

/// True once, over all processes: the environment names a folder that marks it.
bool isFirst(const char* variable) {
  const char* const name = std::getenv(variable);
  std::error_code ignored;
  return name != nullptr && std::filesystem::create_directory(name, ignored);
}

void say(const char* text) {
  std::fputs(text, stderr);
  std::fflush(stderr);
}

struct Mishap {
  std::string_view name;
  void (*happen)();
};

constexpr std::array<Mishap, 10> mishaps{{
    {"crash", crash},
    {"abort", abortProcess},
    {"kill", killProcess},
    {"exit", [] { std::_Exit(7); }},
    {"hang", [] { std::this_thread::sleep_for(std::chrono::hours(1)); }},
    {"nap", [] { std::this_thread::sleep_for(std::chrono::milliseconds(200)); }},
    {"memory", [] { throw std::bad_alloc(); }},
    {"say", [] { say("something is odd\n"); }},
    {"cry",
     [] {
       say("first\nit hurts\n");
       crash();
     }},
    {"killonce",
     [] {
       if (isFirst("VTLCMD_TEST_MARK")) killProcess();
     }},
}};

/// What happens at a frame, or at "load".
void meet(const std::string& moment) {
  const char* const plan = std::getenv("VTLCMD_TEST_MISHAPS");
  const std::string text = "," + std::string(plan == nullptr ? "" : plan) + ",";
  for (const Mishap& mishap : mishaps) {
    const std::string row = "," + moment + "=" + std::string(mishap.name) + ",";
    if (text.find(row) != std::string::npos) mishap.happen();
  }
}

class Failing final : public VtlCmdTypeTranslation {
 public:
  bool getOutputValue(const Orvel::Value& value, OutputValueData* data) const override {
    const double frame = data->context->frame;
    char text[32];
    static_cast<void>(std::snprintf(text, sizeof text, "%g", frame));
    meet(text);
    return VtlCmdTypeTranslation::getOutputValue(value, data);
  }
};

}  // namespace
}  // namespace vtlcmd::failing

VantrelGraph::Executor::TypeTranslation* createVantrelTypeTranslation() noexcept {
  if (!vtlcmd::failing::isFirst("VTLCMD_TEST_LOADED")) vtlcmd::failing::meet("load");
  return new (std::nothrow) vtlcmd::failing::Failing;
}
