#pragma once

#include <string>

namespace vtlcmd::oracle {

/// Gives the decimal number at the beginning of a text to parsers of others and holds the number
/// parsers for float and double against the 64-bit value that each of them reads. Empty when all
/// agree or when there is no decimal number; else the judge, the text and both answers.
std::string firstDisagreement(const std::string& text);

}  // namespace vtlcmd::oracle
