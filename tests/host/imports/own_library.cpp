#include "host/imports/own_library.h"

#include <cstdlib>
#include <cstring>
#include <utility>

#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/orvel_type_info.h"

namespace Orvel {
namespace {

std::vector<std::string> calls;
std::vector<void*> blocks;

/// Blocks are numbered as they are handed out; an address may come again.
std::string numberOf(const void* block) {
  std::size_t number = blocks.size();
  while (number > 0 && blocks[number - 1] != block) --number;
  return std::to_string(number);
}

}  // namespace

void testing::startAnew() {
  calls.clear();
  blocks.clear();
}

std::vector<std::string> testing::takeCalls() { return std::exchange(calls, {}); }

namespace Internal {

const TypeInfo TypeInfo::s_void{"", 0, 0, 0, 0, 0};

void* UntypedTypeRep::allocate(std::uint64_t count) const {
  blocks.push_back(std::malloc(count * elementSize));
  calls.push_back("allocate " + std::to_string(count) + " of " + std::to_string(elementSize) +
                  " at " + std::to_string(elementAlignment));
  return blocks.back();
}

void UntypedTypeRep::deallocate(void* block, std::uint64_t count) const noexcept {
  calls.push_back("deallocate block " + numberOf(block) + " of " + std::to_string(count));
  std::free(block);
}

}  // namespace Internal

String::String() noexcept : text_(nullptr), size_(0) {}

// The text isn't copied, so it has to outlive the string; a moved one is told by its null.
String::String(const char* text) : text_(const_cast<char*>(text)), size_(std::strlen(text)) {
  calls.push_back(std::string("make ") + text);
}

String::String(const String& other) : text_(other.text_), size_(other.size_) {
  calls.push_back(std::string("copy ") + c_str());
}

String::String(String&& other) noexcept
    : text_(std::exchange(other.text_, nullptr)), size_(std::exchange(other.size_, 0)) {
  calls.push_back(std::string("move ") + c_str());
}

String::~String() { calls.push_back(std::string("end ") + c_str()); }

const char* String::c_str() const noexcept { return text_ == nullptr ? "moved" : text_; }

}  // namespace Orvel
