#include "farm/farm_job.h"

#include <gtest/gtest.h>

#include "runner/support/temporary_folder.h"

namespace vtlcmd::runner {
namespace {

TEST(FarmJob, IsReadAsItWasWritten) {
  const TemporaryFolder place;
  const FarmFolder folder(place / "");
  FarmJob job;
  job.program = place / "vtlcmd";
  job.workingFolder = place / "it's here";
  job.graph = "bär.json";
  job.runWords = {"--set=a=\"b\"\n", "--quiet"};
  job.frames = "1-10x0.1";
  job.chunkSize = 7;
  job.reports = {place / "a.json", place / "b.html"};
  job.reportWords = {"--no-times"};
  job.schedulerWords = {"-p", "long jobs"};
  job.key = R"({"graph":"0123","files":{}})";
  EXPECT_FALSE(holdsFarmJob(folder));
  writeFarmJob(folder, job);
  ASSERT_TRUE(holdsFarmJob(folder));
  const FarmJob read = readFarmJob(folder);
  EXPECT_EQ(read.program, job.program);
  EXPECT_EQ(read.workingFolder, job.workingFolder);
  EXPECT_EQ(read.graph, job.graph);
  EXPECT_EQ(read.runWords, job.runWords);
  EXPECT_EQ(read.frames, job.frames);
  EXPECT_EQ(read.chunkSize, job.chunkSize);
  EXPECT_EQ(read.reports, job.reports);
  EXPECT_EQ(read.reportWords, job.reportWords);
  EXPECT_EQ(read.schedulerWords, job.schedulerWords);
  EXPECT_EQ(read.key, job.key);
}

TEST(FarmJob, CantHoldWhatIsNoText) {
  const TemporaryFolder place;
  const FarmFolder folder(place / "");
  FarmJob job;
  job.graph = "\xff.json";
  job.key = "{}";
  EXPECT_THROW(writeFarmJob(folder, job), std::system_error);
  EXPECT_EQ(place.fileCount(), 0u);
}

TEST(SubmittedJobs, AreEmptyUntilTheyAreWritten) {
  const TemporaryFolder place;
  const FarmFolder folder(place / "");
  std::filesystem::create_directories(folder.submission(1));
  EXPECT_EQ(readSubmittedJobs(folder, 1).tasks, "");
  writeSubmittedJobs(folder, 1, {"11", "12"});
  EXPECT_EQ(readSubmittedJobs(folder, 1).tasks, "11");
  EXPECT_EQ(readSubmittedJobs(folder, 1).report, "12");
}

}  // namespace
}  // namespace vtlcmd::runner
