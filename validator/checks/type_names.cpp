#include "checks/type_names.h"

#include <algorithm>
#include <cctype>

namespace vtlcmd::validator {

std::string nameOfType(const std::string& typeName) {
  const std::size_t colon = typeName.rfind(':');
  std::string name = colon == std::string::npos ? typeName : typeName.substr(colon + 1);
  std::transform(name.begin(), name.end(), name.begin(), [](unsigned char letter) {
    return letter == ' ' ? '-' : static_cast<char>(std::tolower(letter));
  });
  return name;
}

std::string arrayName(const std::string& element, unsigned depth) {
  return depth == 0 ? element : "array<" + arrayName(element, depth - 1) + ">";
}

}  // namespace vtlcmd::validator
