#include <gtest/gtest.h>

#include "vtlcmd/host/imports/vantrel_executor.h"
#include "vtlcmd/stand_in/make_ptr.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace Orvel {
class Library {};
class Metadata {};
template <>
class EntityIndexedList<const Type> {};
}  // namespace Orvel

namespace VantrelGraph::Executor {
namespace {

/// A plug-in that has nothing to say of its own.
class SilentTranslation final : public TypeTranslationPreview {
 public:
  explicit SilentTranslation(bool& ended)
      : TypeTranslationPreview("silent translation"), ended_(ended) {}
  ~SilentTranslation() override { ended_ = true; }

  void destroy() override { delete this; }
  void getSupportedTypeNames(Orvel::Array<Orvel::String>&) const override {}
  bool setInputValue(const Orvel::Type&, vtlcmd::Any&, vtlcmd::InputValueData*) const override {
    return false;
  }
  bool getOutputAny(const vtlcmd::Any&, vtlcmd::OutputValueData*) const override { return false; }
  bool getOutputValue(const Orvel::Value&, vtlcmd::OutputValueData*) const override {
    return false;
  }

 private:
  bool& ended_;
};

TEST(TypeTranslation, AcceptsEveryNoticeOfTheHost) {
  bool ended = false;
  TypeTranslation* translation = new SilentTranslation(ended);
  const Orvel::String name("port");
  EXPECT_TRUE(translation->portAdded(name, TypeTranslation::PortDirection{}, Orvel::typeOf<float>(),
                                     Orvel::Metadata(), TypeTranslation::PortClass{}, nullptr));
  EXPECT_TRUE(translation->portRenamed("board", name, "other"));
  EXPECT_TRUE(translation->portRemoved("board", name));
  EXPECT_TRUE(translation->registerHostPlugins(nullptr));
  EXPECT_TRUE(translation->unregisterHostPlugins(nullptr));
  Orvel::EntityIndexedList<const Orvel::Type> types;
  translation->getSupportedTypes(Orvel::Library(), types);
  EXPECT_FALSE(ended);
  translation->destroy();
  EXPECT_TRUE(ended);
}

TEST(TypeTranslation, EndsThroughItsBase) {
  bool ended = false;
  delete static_cast<TypeTranslation*>(new SilentTranslation(ended));
  EXPECT_TRUE(ended);
}

}  // namespace
}  // namespace VantrelGraph::Executor
