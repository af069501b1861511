// A host in its smallest form: it gives two input ports their values from text, hands one of them
// back as the value of an output port, and prints what the plug-in says to it all.

#include <cstdint>
#include <dlfcn.h>
#include <iostream>

#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/vantrel_executor.h"
#include "vtlcmd/host/imports/vantrel_math.h"
#include "vtlcmd/host/port_value_map.h"
#include "vtlcmd/logging/vtlcmd_logger.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace {

/// The loaded library with one translation object.
class PlugIn {
 public:
  using Translation = VantrelGraph::Executor::TypeTranslationPreview;

  explicit PlugIn(const char* file) : library_(dlopen(file, RTLD_NOW | RTLD_LOCAL)) {
    if (library_ == nullptr) return;
    // The one export. Its objects have all twelve operations.
    using Create = VantrelGraph::Executor::TypeTranslation* (*)();
    const auto create = reinterpret_cast<Create>(dlsym(library_, "createVantrelTypeTranslation"));
    if (create != nullptr) translation_ = static_cast<Translation*>(create());
  }
  PlugIn(const PlugIn&) = delete;
  PlugIn& operator=(const PlugIn&) = delete;
  ~PlugIn() {
    // What the plug-in allocated the plug-in ends, and before its library goes.
    if (translation_ != nullptr) translation_->destroy();
    if (library_ != nullptr) dlclose(library_);
  }

  /// Null when the library can't be loaded or has no object to give.
  const Translation* translation() const { return translation_; }

 private:
  void* library_;
  Translation* translation_ = nullptr;
};

}  // namespace

int main() {
  const PlugIn plugIn(PLUGIN_DIR "/libVtlCmdTranslation.so");
  if (plugIn.translation() == nullptr) {
    std::cerr << "no plug-in in " PLUGIN_DIR "\n";
    return 1;
  }
  const PlugIn::Translation& translation = *plugIn.translation();

  // The records of a run belong to the host and outlive each call.
  vtlcmd::PortValueMap texts;
  texts.insert("count", {{}, "12abc"});
  texts.insert("offset", {{}, "1,2.5,-3"});
  const vtlcmd::PortValueMap jobTexts;
  vtlcmd::VtlCmdLogger logger(10);
  vtlcmd::RunContext context{&texts, &jobTexts, 0, 1, 1.0 / 24, {}, {}, &logger};

  // Values carry code of the plug-in along: they come after it and so end before it.
  vtlcmd::Any value;
  const Orvel::String count = "count";
  vtlcmd::InputValueData countData{nullptr, &count, false, {}, &context};
  std::cout << std::boolalpha << "count: "
            << translation.setInputValue(Orvel::typeOf<std::int32_t>(), value, &countData) << '\n';

  const Orvel::Type vector = Orvel::typeOf<Vantrel::Math::float3>();
  const Orvel::String offset = "offset";
  vtlcmd::InputValueData offsetData{nullptr, &offset, false, {}, &context};
  if (!translation.setInputValue(vector, value, &offsetData)) return 1;

  const Orvel::String corner = "corner";
  vtlcmd::OutputValueData cornerData{nullptr, &corner, &context};
  if (!translation.getOutputValue(Orvel::fromAny(vector, value), &cornerData)) return 1;

  for (const auto& [port, report] : logger.currentEntry().outputs)
    std::cout << port << ": " << report.typeName << ' ' << report.valueText << '\n';
  for (const vtlcmd::LogMessage& message : logger.messages) {
    std::cout << vtlcmd::VtlCmdLogger::makeMessagePrefix(message.source, message.level)
              << message.text << '\n';
  }
}
