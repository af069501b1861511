#include "saving/output_saver.h"

#include <stdexcept>
#include <system_error>

#include "platform/file_identity.h"
#include "report/whole_file.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace fs = std::filesystem;

std::string saveValue(const SavedOutput& saved, double frame, const Orvel::Value& value,
                      const std::set<fs::path>& filesRead) {
  const std::string name = saved.file.at(frame);
  const fs::path path = filePath(name);
  if (filesRead.contains(fileIdentity(path)))
    throw std::invalid_argument(name + ": the run has read this file");
  try {
    WholeFile file(path);
    std::string remark = saved.format->write(file.stream(), saved.type, value);
    file.commit();
    return remark.empty() ? remark : name + ": " + remark;
  } catch (const std::system_error& error) {
    // The portable condition has the same words on every platform.
    const std::error_condition condition = error.code().default_error_condition();
    throw std::system_error(condition.value(), condition.category(), name);
  } catch (const std::invalid_argument& error) {
    throw std::invalid_argument(name + ": " + error.what());
  }
}

}  // namespace vtlcmd::runner
