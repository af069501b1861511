#include "options.h"

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <limits>

namespace vtlcmd::oracle {

void readOptions(int argumentCount, char** arguments, const char* purpose,
                 std::initializer_list<Option> options) {
  CLI::App app(purpose);
  for (const Option& option : options) {
    if (bool* const* flag = std::get_if<bool*>(&option.target)) {
      app.add_flag(option.name, **flag, option.help);
    } else {
      app.add_option(option.name, *std::get<std::uint64_t*>(option.target), option.help)
          ->check(CLI::Range(option.least, std::numeric_limits<std::uint64_t>::max()))
          ->capture_default_str();
    }
  }
  try {
    app.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    std::exit(app.exit(error));
  }
}

}  // namespace vtlcmd::oracle
