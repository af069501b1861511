#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

/// What the platform knows of this process.

namespace vtlcmd::runner {

/// The words behind the program's name. On Windows in UTF-8, from the command line in wide
/// characters and not from `words`; elsewhere as they are.
std::vector<std::string> commandLineWords(int count, char** words);

/// Makes the standard streams carry the program's bytes as they are, and consoles read them as
/// UTF-8. To be called once, before anything is written.
void prepareStandardStreams();

/// Lets freed memory stay with this process up to a bound, so that frames that take as much each
/// needn't be given it anew, page by page. To be called once, before there are other threads.
void keepFreedMemory() noexcept;

/// Takes the standard output for what the program itself writes to the returned stream; what others
/// in this process print there goes to standard error from now on. Throws std::system_error.
std::FILE* takeStandardOutput();

/// Whether standard output and standard error are terminals that understand control sequences.
bool outputGoesToTerminal();
bool errorsGoToTerminal();

/// This program's file, with its absolute path; empty when the platform doesn't tell.
std::filesystem::path ownFile();

}  // namespace vtlcmd::runner
