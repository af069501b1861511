#include "command_line/report_options.h"

#include <CLI/App.hpp>

#include "command_line/option_values.h"
#include "command_line/terminal.h"
#include "execution/plug_in.h"
#include "text/path_text.h"

namespace vtlcmd::runner {

void ReportOptions::addTo(CLI::App& command) {
  command
      .add_option("-l,--print-limit", printLimit_,
                  "Elements that one array level lists; 0 prints no values")
      ->type_name("NUMBER")
      ->capture_default_str();
  CLI::Option* verbosity =
      command
          .add_option("-v,--verbosity", verbosity_,
                      "Level up to which messages are printed: none, critical, error, warning, "
                      "progress, verbose, debug, or 0 to 6")
          ->type_name("LEVEL")
          ->capture_default_str();
  command.add_flag("-q,--quiet", quiet_, "Print warnings and errors only")->excludes(verbosity);
  command.add_option("--through", through_, "Form in which the plug-in gets output values")
      ->type_name("FORM")
      ->check(CLI::IsMember({"value", "any"}))
      ->capture_default_str();
  addPlugInOption(command, plugIn_);
  command.add_option("--color", color_, "Colour of warnings and errors; auto means on a terminal")
      ->type_name("WHEN")
      ->check(CLI::IsMember({"auto", "always", "never"}))
      ->capture_default_str();
}

std::uint32_t ReportOptions::printLimit() const { return parsePrintLimit(printLimit_); }

std::uint32_t ReportOptions::verbosity() const {
  return quiet_ ? std::uint32_t{levelWarning} : parseVerbosity(verbosity_);
}

OutputForm ReportOptions::outputForm() const {
  return through_ == "any" ? OutputForm::any : OutputForm::value;
}

std::filesystem::path ReportOptions::plugInFile() const { return plugInFileFrom(plugIn_); }

MessagePrinter::Sinks ReportOptions::sinks(TextSink report) const {
  return {report, standardErrors(), wantsColor(color_)};
}

CLI::Option* addPlugInOption(CLI::App& command, std::string& plugIn) {
  return command.add_option("--plugin", plugIn, "Plug-in to use instead of the program's own")
      ->type_name("FILE");
}

std::filesystem::path plugInFileFrom(const std::string& option) {
  return option.empty() ? ownPlugIn() : filePath(option);
}

}  // namespace vtlcmd::runner
