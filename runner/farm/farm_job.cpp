#include "farm/farm_job.h"

#include <system_error>

#include "readers/file_text.h"
#include "report/whole_file.h"
#include "text/json.h"
#include "text/path_text.h"
#include "text/program_version.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

/// The version of the form of a farm's folder.
constexpr int farmForm = 1;

void writeJson(const fs::path& file, const Json& document) {
  WholeFile whole(file);
  try {
    whole.stream() << document.dump(2) << '\n';
  } catch (const Json::type_error&) {
    // A name that isn't UTF-8 has no form in JSON.
    throw std::system_error(std::make_error_code(std::errc::illegal_byte_sequence));
  }
  whole.commit();
}

Json readJson(const fs::path& file) {
  try {
    return parseJson(readFile(file));
  } catch (const std::system_error& error) {
    throw FarmError(fileText(file) + ": " + reasonOf(error));
  } catch (const Json::exception&) {
    throw FarmError(fileText(file) + " is damaged");
  }
}

std::vector<std::string> textsOf(const std::vector<fs::path>& files) {
  std::vector<std::string> texts;
  texts.reserve(files.size());
  for (const fs::path& file : files) texts.push_back(fileText(file));
  return texts;
}

FarmJob jobFrom(const Json& json) {
  FarmJob job;
  job.program = filePath(json.at("program").get<std::string>());
  job.workingFolder = filePath(json.at("working_folder").get<std::string>());
  job.graph = json.at("graph");
  job.runWords = json.at("run_words");
  job.frames = json.at("frames");
  job.chunkSize = json.at("chunk_size");
  for (const std::string report : json.at("reports")) job.reports.push_back(filePath(report));
  job.reportWords = json.at("report_words");
  job.schedulerWords = json.at("scheduler_words");
  job.key = json.at("key").dump();
  return job;
}

}  // namespace

void writeFarmJob(const FarmFolder& folder, const FarmJob& job) {
  writeJson(folder.job(), {{"form", farmForm},
                           {"version", programVersion()},
                           {"program", fileText(job.program)},
                           {"working_folder", fileText(job.workingFolder)},
                           {"graph", job.graph},
                           {"run_words", job.runWords},
                           {"frames", job.frames},
                           {"chunk_size", job.chunkSize},
                           {"reports", textsOf(job.reports)},
                           {"report_words", job.reportWords},
                           {"scheduler_words", job.schedulerWords},
                           {"key", parseJson(job.key)}});
}

bool holdsFarmJob(const FarmFolder& folder) {
  std::error_code ignored;
  return fs::is_regular_file(folder.job(), ignored);
}

FarmJob readFarmJob(const FarmFolder& folder) {
  const Json json = readJson(folder.job());
  try {
    if (json.at("form") != farmForm)
      throw FarmError(fileText(folder.job()) + " has a form that this program doesn't know");
    return jobFrom(json);
  } catch (const Json::exception&) {
    throw FarmError(fileText(folder.job()) + " is damaged");
  }
}

void writeSubmittedJobs(const FarmFolder& folder, std::size_t submission,
                        const SubmittedJobs& jobs) {
  writeJson(folder.submission(submission) / submission_files::jobs,
            {{"tasks", jobs.tasks}, {"report", jobs.report}});
}

SubmittedJobs readSubmittedJobs(const FarmFolder& folder, std::size_t submission) {
  const fs::path file = folder.submission(submission) / submission_files::jobs;
  std::error_code ignored;
  if (!fs::exists(file, ignored)) return {};
  try {
    const Json json = readJson(file);
    return {json.at("tasks"), json.at("report")};
  } catch (const Json::exception&) {
    throw FarmError(fileText(file) + " is damaged");
  }
}

}  // namespace vtlcmd::runner
