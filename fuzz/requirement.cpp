#include "requirement.h"

#include <cstdlib>
#include <iostream>

namespace vtlcmd::fuzz {

void requireEqual(std::string_view what, std::string_view found, std::string_view expected) {
  if (found == expected) return;
  std::cerr << what << " is\n" << found << "\nand not\n" << expected << std::endl;
  std::abort();
}

void require(bool kept, std::string_view promise) {
  if (kept) return;
  std::cerr << "not kept: " << promise << std::endl;
  std::abort();
}

}  // namespace vtlcmd::fuzz
