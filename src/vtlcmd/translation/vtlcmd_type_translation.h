#pragma once

#include "vtlcmd/host/host_records.h"
#include "vtlcmd/host/imports/vantrel_executor.h"
#include "vtlcmd/translation/handler_table.h"

namespace vtlcmd {

/// Where text and typed values meet. The object holds nothing but its way to the shared table, so
/// the operations may come in any order and any number of times, also on a constant object.
///
/// The host gets one from `createVantrelTypeTranslation` and gives it up through `destroy`. It has
/// to go before the library is unloaded.
class VtlCmdTypeTranslation : public VantrelGraph::Executor::TypeTranslationPreview {
 public:
  VtlCmdTypeTranslation();
  ~VtlCmdTypeTranslation() override;

  /// Deletes the object through slot 0 of its table, whatever a host has put there; does nothing
  /// for a null one. [any thread]
  void destroy() override;

  /// Appends the fifteen registered names in the order of the table, then the two records'. What
  /// the array held stays. [any thread] [may throw]
  void getSupportedTypeNames(Orvel::Array<Orvel::String>& names) const override;

  /// Gives an input or Job port its value. True when `value` holds it; on false the logger knows
  /// why, but for an array type, which is refused in silence, and for null `data`, which is told on
  /// the error stream. `value` is unchanged on false, or empty when a given text could not be
  /// used. [logger's thread] [may throw]
  bool setInputValue(const Orvel::Type& type, Any& value, InputValueData* data) const override;

  /// Reports an output port's value, found by the tag of the Any. False, in silence, for a tag that
  /// has no reporter. [logger's thread] [may throw]
  bool getOutputAny(const Any& value, OutputValueData* data) const override;

  /// Reports an output port's value, found by the name of its type, array levels taken off. False
  /// and a warning for a type that has no reporter. [logger's thread] [may throw]
  bool getOutputValue(const Orvel::Value& value, OutputValueData* data) const override;

 private:
  /// Of the whole process; not owned, never null.
  const HandlerTable* handlers;
};

static_assert(sizeof(VtlCmdTypeTranslation) ==
              sizeof(VantrelGraph::Executor::TypeTranslationPreview) + sizeof(void*));

}  // namespace vtlcmd
