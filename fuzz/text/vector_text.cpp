#include <string>

#include "oracle/input_comparison.h"
#include "requirement.h"
#include "target.h"

/// A text as one component among good ones, of too few to too many, against the model.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t mostComponents = 5;
  const std::string piece = vtlcmd::fuzz::textOf(data, size);
  for (std::size_t count = 1; count <= mostComponents; ++count) {
    const std::size_t place = size % count;
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
      if (i > 0) text += ',';
      text += i == place ? piece : std::to_string(i);
    }
    vtlcmd::fuzz::requireEqual("the difference", vtlcmd::oracle::firstDifference(text), "");
  }
  return 0;
}
