#include <new>

#include "defect.h"
#include "defect_name.h"
#include "vtlcmd/translation/entry.h"

// The plug-in with one defect.

namespace vtlcmd::spoiled {
namespace {

const Defect& defect = defectNamed(defectName);

class Spoiled final : public VtlCmdTypeTranslation {
 public:
  void destroy() override {
    defect.destroy == nullptr ? VtlCmdTypeTranslation::destroy() : defect.destroy(this);
  }
  void getSupportedTypeNames(Orvel::Array<Orvel::String>& names) const override {
    defect.names == nullptr ? VtlCmdTypeTranslation::getSupportedTypeNames(names)
                            : defect.names(good_, names);
  }
  bool setInputValue(const Orvel::Type& type, Any& value, InputValueData* data) const override {
    return defect.setInput == nullptr ? VtlCmdTypeTranslation::setInputValue(type, value, data)
                                      : defect.setInput(good_, type, value, data);
  }
  bool getOutputAny(const Any& value, OutputValueData* data) const override {
    return defect.getAny == nullptr ? VtlCmdTypeTranslation::getOutputAny(value, data)
                                    : defect.getAny(good_, value, data);
  }
  bool getOutputValue(const Orvel::Value& value, OutputValueData* data) const override {
    return defect.getValue == nullptr ? VtlCmdTypeTranslation::getOutputValue(value, data)
                                      : defect.getValue(good_, value, data);
  }

 private:
  const VtlCmdTypeTranslation good_;
};

}  // namespace
}  // namespace vtlcmd::spoiled

VantrelGraph::Executor::TypeTranslation* createVantrelTypeTranslation() noexcept {
  return new (std::nothrow) vtlcmd::spoiled::Spoiled;
}
