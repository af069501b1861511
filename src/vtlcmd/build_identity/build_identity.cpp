#include "vtlcmd/build_identity/build_identity.h"

#include <cstdlib>
#include <iomanip>
#include <sstream>
#include <string_view>

#include "build_facts.h"

namespace vtlcmd::build_identity {

// NOLINTBEGIN(cert-err34-c): the facts are digits, and of a foreign text atoi's answer is wanted
const char* productName() { return build_facts::productName; }
int majorVersion() { return std::atoi(build_facts::majorVersion); }
int minorVersion() { return std::atoi(build_facts::minorVersion); }
int patchVersion() { return std::atoi(build_facts::patchVersion); }
int fourthVersion() { return std::atoi(build_facts::fourthVersion); }
int buildNumber() { return std::atoi(build_facts::buildNumber); }
const char* buildDate() { return build_facts::buildDate; }
const char* commit() { return build_facts::commit; }
const char* branch() { return build_facts::branch; }

bool envFlag(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): read only
  return value != nullptr && std::atoi(value) != 0;
}
// NOLINTEND(cert-err34-c)

std::string versionText() {
  std::ostringstream text;
  text << majorVersion() << '.' << minorVersion() << '.' << patchVersion() << '.'
       << fourthVersion();
  return text.str();
}

std::string buildBanner() {
  constexpr int shortCommit = 7;
  std::ostringstream text;
  text << productName() << " version " << versionText();
  text << " (" << buildDate();
  text << ", build " << buildNumber();
  text << ", commit " << std::setw(shortCommit) << std::string_view(commit(), shortCommit);
  text << ", branch " << branch();
  text << ")";
  return text.str();
}

}  // namespace vtlcmd::build_identity
