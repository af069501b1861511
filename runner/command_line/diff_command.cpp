#include <CLI/App.hpp>
#include <iostream>
#include <memory>
#include <string>

#include "command_line/commands.h"
#include "command_line/option_values.h"
#include "diff/run_difference.h"
#include "journal/run_key.h"
#include "text/control_characters.h"
#include "text/json_text.h"
#include "text/load_error.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* diffFooter = R"(Examples:
  vtlcmd diff yesterday.journal today.journal
  vtlcmd diff a.json b.json --tolerance 1e-6,1e-9 --json

Frames are compared by number: how they ended, the exact values of their
outputs, their errors and warnings. With --tolerance numbers are equal that are
no farther apart than ABS or than REL of the larger one.

Exit codes: 0 no difference, 1 differences, 3 a file can't be read.
)";

/// People want no more lines than these; scripts take --json.
constexpr std::uint64_t mostLines = 50;

struct DiffOptions {
  std::string a;
  std::string b;
  std::string tolerance = "0";
  bool json = false;
};

std::string shownValue(const Json& value) {
  constexpr std::size_t mostLength = 60;
  if (value.is_null()) return "nothing";
  std::string text = jsonText(value);
  if (text.size() <= mostLength) return text;
  std::size_t length = mostLength;
  // A character of several bytes stays whole.
  while ((static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) --length;
  return text.substr(0, length) + "...";
}

std::string counted(std::uint64_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// What the runs were given differently; nothing of runs that were never loaded.
std::string causeOf(const ComparedRun& a, const ComparedRun& b) {
  return keyDifference(b.run().value("key", Json()), a.run().value("key", Json()));
}

bool printTextDifferences(const DiffOptions& options, ComparedRun& a, ComparedRun& b,
                          const Tolerance& tolerance) {
  std::uint64_t lines = 0;
  const auto print = [&](const RunDifference& difference) {
    if (lines == 0) {
      const std::string cause = causeOf(a, b);
      if (!cause.empty()) {
        std::cout << withoutControls(options.b + " was given something else than " + options.a +
                                     ": " + cause)
                  << '\n';
      }
    }
    if (++lines > mostLines) return;
    const char* dot = difference.output.empty() || difference.place.empty() ? "" : ".";
    std::cout << withoutControls("frame " + difference.frame + ": " + difference.output + dot +
                                 difference.place + ": " + shownValue(difference.a) + " -> " +
                                 shownValue(difference.b))
              << '\n';
  };
  const DifferenceCounts counts = compareRuns(a, b, tolerance, print);
  if (counts.differences == 0) return true;
  if (lines > mostLines) std::cout << "...\n";
  std::cout << counted(counts.differences, "difference") << " in "
            << counted(counts.differentFrames, "frame") << '\n';
  return false;
}

bool printJsonDifferences(const DiffOptions& options, ComparedRun& a, ComparedRun& b,
                          const Tolerance& tolerance) {
  std::cout << "{\n  \"a\": " << jsonText(options.a) << ",\n  \"b\": " << jsonText(options.b)
            << ",\n  \"given\": " << jsonText(causeOf(a, b)) << ",\n  \"differences\": [";
  const char* separator = "\n    ";
  const DifferenceCounts counts = compareRuns(a, b, tolerance, [&](const RunDifference& found) {
    const Json output = found.output.empty() ? Json() : Json(found.output);
    std::cout << separator
              << jsonText({{"frame", found.frame},
                           {"output", output},
                           {"place", found.place},
                           {"a", found.a},
                           {"b", found.b}});
    separator = ",\n    ";
  });
  std::cout << "\n  ],\n  \"totals\": "
            << jsonText({{"frames_of_a", counts.framesOfA},
                         {"frames_of_b", counts.framesOfB},
                         {"different_frames", counts.differentFrames},
                         {"differences", counts.differences}})
            << "\n}\n";
  return counts.differences == 0;
}

ExitCode diff(const DiffOptions& options) {
  const Tolerance tolerance = parseTolerance(options.tolerance);
  const std::unique_ptr<ComparedRun> a = openRun(options.a);
  const std::unique_ptr<ComparedRun> b = openRun(options.b);
  try {
    const bool areEqual =
        (options.json ? printJsonDifferences : printTextDifferences)(options, *a, *b, tolerance);
    return areEqual ? ExitCode::success : ExitCode::runFailed;
  } catch (const Json::exception&) {
    throw LoadError(options.a + " or " + options.b + " lacks something that reports have");
  }
}

}  // namespace

void addDiffCommand(CLI::App& app, CommandState& state) {
  const auto options = std::make_shared<DiffOptions>();
  CLI::App* command = app.add_subcommand("diff", "Tell what changed between two runs");
  command->add_option("A", options->a, "Journal or JSON report of a run")
      ->required()
      ->type_name("");
  command->add_option("B", options->b, "Journal or JSON report of another run")
      ->required()
      ->type_name("");
  command
      ->add_option("--tolerance", options->tolerance,
                   "How far numbers may be apart; to the bit unless given")
      ->type_name("ABS[,REL]");
  command->add_flag("--json", options->json, "Print a JSON document");
  command->footer(diffFooter);
  command->callback([options, &state] { state.exitCode = diff(*options); });
}

}  // namespace vtlcmd::runner
