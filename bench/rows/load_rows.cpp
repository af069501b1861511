#include "plug_in_host/plug_in.h"
#include "rows/rows.h"

namespace vtlcmd::bench {
namespace {

void loadAndUnload(const char* file) {
  const Library library(file);
  if (auto* translation = library.create()) translation->destroy();
}

}  // namespace

/// The other library has the plug-in's imports and a function that does nothing.
std::vector<TimedRow> loadRows() {
  TimedRow row;
  row.name = "load, create, destroy, unload";
  row.goal = 1.5;
  row.pairs = 201;
  row.subject = [](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) loadAndUnload(VTLCMD_PLUG_IN_COPY);
  };
  row.limit = [](std::size_t calls) {
    for (std::size_t i = 0; i < calls; ++i) loadAndUnload(VTLCMD_EMPTY_PLUG_IN);
  };
  return {row};
}

}  // namespace vtlcmd::bench
