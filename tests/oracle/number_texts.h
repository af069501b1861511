#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "random_source.h"

namespace vtlcmd::oracle {

std::string randomString(RandomSource& random, std::size_t length, std::string_view alphabet);

// Random spellings of numbers, most of which a strict parser accepts for some type.

std::string integer(RandomSource& random);
/// A limit of an integer type, or a neighbour of one.
std::string integerLimit(RandomSource& random);
std::string decimal(RandomSource& random);
/// A limit of a floating type, or a value at which rounding to it turns: whole, or cut to a few
/// digits, and at times off by one in the last digit.
std::string decimalLimit(RandomSource& random);
/// Exactly half-way between two neighbouring floats or doubles, or a little beside it.
std::string decimalHalf(RandomSource& random);
std::string hexadecimal(RandomSource& random);
std::string hexadecimalHalf(RandomSource& random);
/// Up to 5,000 digits.
std::string longNumber(RandomSource& random);

}  // namespace vtlcmd::oracle
