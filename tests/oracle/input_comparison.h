#pragma once

#include <string>

namespace vtlcmd::oracle {

/// Gives one text to every parser of every registered type and compares values, to the bit, states
/// and messages with the model. Empty when all agree; else the text, the operation and both
/// answers.
std::string firstDifference(const std::string& text);

}  // namespace vtlcmd::oracle
