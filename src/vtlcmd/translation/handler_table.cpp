#include "vtlcmd/translation/handler_table.h"

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/input/input_setter.h"
#include "vtlcmd/output/output_reporter.h"

namespace vtlcmd {
namespace {

template <Registered T>
void registerType(HandlerTable& table) {
  table.byTag[&typeTag<T, 0>] = &reportScalar<T>;
  table.byTag[&typeTag<T, 1>] = &reportArray<T, 1>;
  table.byTag[&typeTag<T, 2>] = &reportArray<T, 2>;
  table.byTag[&typeTag<T, 3>] = &reportArray<T, 3>;
  table.byName[valueType<T>().name] = {&inputSetter<T>, &reportValue<T>};
}

}  // namespace

HandlerTable::HandlerTable() {
  forEachRow(registeredTypes,
             [this]<typename T>(const RegisteredType<T>&) { registerType<T>(*this); });
}

const HandlerTable& sharedHandlerTable() {
  static const HandlerTable table;
  return table;
}

}  // namespace vtlcmd
