#pragma once

#include <string>
#include <vector>

/// What the platform does to a program before `main`.

namespace vtlcmd::validator {

/// The words behind the program's name. On Windows in UTF-8, from the command line in wide
/// characters and not from `words`; elsewhere as they are.
std::vector<std::string> commandLineWords(int count, char** words);

/// Makes the standard streams carry the program's bytes as they are, and has this process and those
/// that it starts end where the system would ask the user first. To be called once, before anything
/// is written.
void prepareProcess();

}  // namespace vtlcmd::validator
