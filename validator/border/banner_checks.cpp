#include <regex>

#include "checks/outcome.h"
#include "checks/subjects.h"
#include "host/session.h"
#include "platform/descriptors.h"
#include "platform/error_stream.h"

namespace vtlcmd::validator {
namespace {

constexpr const char* variable = "QUILLON_DUMP_VERSION_INFO";

/// What loading, using and unloading the library writes to the error stream.
std::string writtenWith(Session& session, const char* value) {
  session.unload();
  setEnvironment(variable, value);
  const CaughtErrors errors;
  {
    const Translator first(session.plugIn());
    const Translator second(session.plugIn());
  }
  session.unload();
  setEnvironment(variable, nullptr);
  return errors.text();
}

void isSilentWith(Session& session, const char* value) {
  expectText("error stream", writtenWith(session, value), "");
}

void speaksWith(Session& session, const char* value) {
  const std::string line = writtenWith(session, value);
  static const std::regex form(
      "VtlCmdTranslation: Vantrel version [0-9]+\\.[0-9]+\\.[0-9]+\\.[0-9]+ "
      "\\([A-Z][a-z]{2} [0-9]{2}/[0-9]{2}/[0-9]{4}, [0-9]{12}, build [0-9]+, "
      "commit [0-9a-f]{7}, branch [^\\n]*\\)\\n");
  expect(std::regex_match(line, form), "one line of the banner's form, found \"" + line + '"');
}

struct BannerRow {
  const char* name;
  const char* value;
  bool speaks;
};

constexpr BannerRow bannerRows[]{
    {"absent", nullptr, false},
    {"zero", "0", false},
    {"empty", "", false},
    {"word", "yes", false},
    {"true", "true", false},
    {"one", "1", true},
    {"two", "2", true},
    {"negative", "-1", true},
    {"number-and-letters", "1abc", true},
    {"blank-and-number", " 1", true},
};

}  // namespace

void addBannerChecks(CheckList& checks) {
  for (const BannerRow& row : bannerRows) {
    checks.push_back(
        {std::string("banner-") + row.name,
         row.speaks ? "Such a value of the variable has the version told at load, once."
                    : "Such a value of the variable has nothing told at load.",
         [&row](Session& session) {
           row.speaks ? speaksWith(session, row.value) : isSilentWith(session, row.value);
         }});
  }
}

}  // namespace vtlcmd::validator
