#include "vantrel_geometry/prototypes.h"

#include <map>
#include <mutex>
#include <string>
#include <string_view>

#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/object_builder.h"

namespace Vantrel::Geometry {

const Orvel::String sGenericDataGeoProp("generic");

namespace {

/// The data prototypes by kind, made when somebody first asks. Those of a kind are covered by the
/// generic one.
class DataPrototypes {
 public:
  Orvel::Ptr<Object> ofKind(std::string_view kind) {
    const std::lock_guard lock(mutex_);
    if (kind == std::string_view(sGenericDataGeoProp.c_str())) return generic_;
    const auto found = kinds_.find(kind);
    if (found != kinds_.end()) return found->second;
    Orvel::MutablePtr<Object> prototype = createObject();
    setProperty(*prototype, prototypeKey, vtlcmd::makeAny(generic_));
    return kinds_.emplace(kind, std::move(prototype)).first->second;
  }

 private:
  std::mutex mutex_;
  Orvel::Ptr<Object> generic_ = createObject();
  std::map<std::string, Orvel::Ptr<Object>, std::less<>> kinds_;
};

}  // namespace

Orvel::Ptr<Object> objectUnder(const Object& owner, Orvel::StringView key) {
  const vtlcmd::Any value = owner.propertyByKey(key);
  const auto* object = vtlcmd::anyCast<Orvel::Ptr<Object>>(&value);
  return object == nullptr ? Orvel::Ptr<Object>() : *object;
}

bool isOfPrototype(const Object& property, const Object& prototype) {
  const Orvel::Ptr<Object> own = objectUnder(property, prototypeKey);
  if (own.get() == &prototype) return true;
  return own && objectUnder(*own, prototypeKey).get() == &prototype;
}

Orvel::Ptr<Object> getComponentGeoPropPrototype() {
  static const Orvel::Ptr<Object> prototype = createObject();
  return prototype;
}

Orvel::Ptr<Object> getDataGeoPropPrototype(Orvel::StringView kind) {
  static DataPrototypes prototypes;
  return prototypes.ofKind({kind.data, kind.size});
}

}  // namespace Vantrel::Geometry
