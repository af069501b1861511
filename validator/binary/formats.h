#pragma once

#include "binary/bytes.h"
#include "binary/symbols.h"

namespace vtlcmd::validator {

BinarySymbols readElf(const Bytes& bytes);
BinarySymbols readPe(const Bytes& bytes);

}  // namespace vtlcmd::validator
