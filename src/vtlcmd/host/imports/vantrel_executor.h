#pragma once

#include <cstdint>

#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/orvel_types.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace vtlcmd {
class Any;
struct InputValueData;
struct OutputValueData;
}  // namespace vtlcmd

namespace Orvel {
class Library;
class Metadata;
template <typename Entity>
class EntityIndexedList;
}  // namespace Orvel

namespace VantrelGraph::Executor {

/// The executor's interface to a plug-in's translation object. The order of the virtual
/// operations is the border: their slots are counted in declaration order. What a plug-in's own
/// bodies promise stands with them; the executor's are called by hosts alone and never here.
/// All operations but `destroy` and the destructor are [any thread].
class VANTREL_BOARD_EXECUTOR_API TypeTranslation {
 public:
  class PortData;
  class PluginHostData;
  enum class PortDirection : std::int32_t;
  enum class PortClass : std::int32_t;

  TypeTranslation(const TypeTranslation&) = delete;
  TypeTranslation& operator=(const TypeTranslation&) = delete;

  virtual ~TypeTranslation();
  /// Ends the object; how a host disposes of what a plug-in allocated. Once, and nothing else of
  /// the object afterwards or at the same time. [no throw]
  virtual void destroy() = 0;
  virtual void getSupportedTypes(const Orvel::Library& library,
                                 Orvel::EntityIndexedList<const Orvel::Type>& types) const;
  /// Appends to `names`, which the host owns. [may throw]
  virtual void getSupportedTypeNames(Orvel::Array<Orvel::String>& names) const = 0;
  /// True when `value` holds the port's value. `data` lives for the call. [logger's thread, may
  /// throw]
  virtual bool setInputValue(const Orvel::Type& type, vtlcmd::Any& value,
                             vtlcmd::InputValueData* data) const = 0;
  /// True when the value was reported. `data` lives for the call. [logger's thread, may throw]
  virtual bool getOutputAny(const vtlcmd::Any& value, vtlcmd::OutputValueData* data) const = 0;
  virtual bool portAdded(const Orvel::String& name, PortDirection direction,
                         const Orvel::Type& type, const Orvel::Metadata& metadata,
                         PortClass portClass, PortData* data) const;
  virtual bool portRemoved(const Orvel::String& board, const Orvel::String& name) const;
  virtual bool portRenamed(const Orvel::String& board, const Orvel::String& oldName,
                           const Orvel::String& newName) const;
  virtual bool registerHostPlugins(const PluginHostData* data) const;
  virtual bool unregisterHostPlugins(const PluginHostData* data) const;

 protected:
  TypeTranslation();
};

/// The interface with the operation that a later executor added.
class VANTREL_BOARD_EXECUTOR_API TypeTranslationPreview : public TypeTranslation {
 public:
  /// True when the value was reported. `data` lives for the call. [logger's thread, may throw]
  virtual bool getOutputValue(const Orvel::Value& value, vtlcmd::OutputValueData* data) const = 0;

 protected:
  /// Keeps a copy of the translation's name. [may throw]
  explicit TypeTranslationPreview(const Orvel::String& name);
  ~TypeTranslationPreview() override;

 private:
  Orvel::String name_;
};

static_assert(sizeof(TypeTranslationPreview) == 24);

}  // namespace VantrelGraph::Executor
