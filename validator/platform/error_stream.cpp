#include "platform/error_stream.h"

#include "checks/outcome.h"
#include "platform/descriptors.h"

namespace vtlcmd::validator {
namespace {

constexpr int errorDescriptor = 2;

}  // namespace

CaughtErrors::CaughtErrors() : file_(temporaryFile()) {
  if (file_ == nullptr) throw Skipped("no temporary file can be made");
  static_cast<void>(std::fflush(stderr));
  kept_ = duplicate(errorDescriptor);
  redirect(descriptorOf(file_), errorDescriptor);
}

CaughtErrors::~CaughtErrors() {
  static_cast<void>(std::fflush(stderr));
  redirect(kept_, errorDescriptor);
  closeDescriptor(kept_);
  static_cast<void>(std::fclose(file_));
}

std::string CaughtErrors::text() const {
  static_cast<void>(std::fflush(stderr));
  std::rewind(file_);
  std::string text;
  for (int byte = std::fgetc(file_); byte != EOF; byte = std::fgetc(file_)) {
    if (byte != '\r') text += static_cast<char>(byte);
  }
  return text;
}

}  // namespace vtlcmd::validator
