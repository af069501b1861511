#include <string>

#include "oracle/input_comparison.h"
#include "requirement.h"
#include "target.h"

/// A port's text as every parser of every type reads it, against the model.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = vtlcmd::fuzz::textOf(data, size);
  vtlcmd::fuzz::requireEqual("the difference", vtlcmd::oracle::firstDifference(text), "");
  return 0;
}
