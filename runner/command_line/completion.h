#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace vtlcmd::runner {

/// Prints how the last of `words`, those behind the program's name as far as they are typed, may
/// go on: a line each with the word, a tab and what it means. A line that begins with a tab asks
/// the shell for file names, behind what follows the tab. Knows the commands of `app`, their
/// options and the ports of the graph that a word names; nothing is printed for what it can't
/// tell.
void printCompletions(const CLI::App& app, const std::vector<std::string>& words,
                      std::ostream& stream);

}  // namespace vtlcmd::runner
