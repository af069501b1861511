#include <CLI/App.hpp>
#include <gtest/gtest.h>
#include <sstream>

#include "command_line/commands.h"
#include "command_line/help_formatter.h"
#include "graph/graph.h"
#include "graph/graph_form.h"

namespace vtlcmd::runner {
namespace {

void expectNarrow(const std::string& text, const std::string& what) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(line.size(), helpWidth) << what << ": " << line;
    EXPECT_FALSE(line.ends_with(' ')) << what << ": " << line;
  }
}

TEST(Help, FitsItsWidthInEveryCommand) {
  CLI::App app;
  CommandState state;
  addCommands(app, state);
  expectNarrow(app.help(), "vtlcmd");
  ASSERT_FALSE(app.get_subcommands({}).empty());
  for (const CLI::App* command : app.get_subcommands({}))
    expectNarrow(command->help("vtlcmd"), command->get_name());
  expectNarrow(graphForm(), "graph");
}

TEST(Help, WordsStayWholeAndAllThere) {
  CLI::App app;
  app.formatter(std::make_shared<HelpFormatter>());
  std::string value;
  app.add_option("--an-option-with-a-long-name", value,
                 "A text that is long enough for more than one line of help, I hope")
      ->type_name("VALUE");
  bool isSet = false;
  app.add_flag("--short", isSet, "Short");
  EXPECT_NE(app.help().find(
                "  --an-option-with-a-long-name VALUE\n"
                "                              A text that is long enough for more than one line\n"
                "                              of help, I hope\n"
                "  --short                     Short\n"),
            std::string::npos)
      << app.help();
}

TEST(Help, TheExampleOfAGraphIsOne) {
  const std::string text = graphForm();
  const std::size_t begin = text.find("  {\n");
  const std::size_t end = text.find("\n  }\n", begin);
  ASSERT_NE(end, std::string::npos);
  const Graph graph = parseGraph(text.substr(begin, end + 4 - begin));
  EXPECT_EQ(graph.name, "lift");
  EXPECT_EQ(graph.nodes.size(), 6U);
  EXPECT_EQ(graph.outputs.size(), 1U);
}

}  // namespace
}  // namespace vtlcmd::runner
