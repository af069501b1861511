#include <gtest/gtest.h>

#include "farm/task_scripts.h"

namespace vtlcmd::runner {
namespace {

FarmJob job() {
  FarmJob job;
  job.program = "/opt/vtlcmd/bin/vtlcmd";
  job.workingFolder = "/home/me/my project";
  job.graph = "graphs/scatter.json";
  job.runWords = {"--set=name=it's", "--quiet"};
  job.frames = "1-1000";
  job.reports = {"/farm/out/report.json", "/home/me/run.html"};
  job.reportWords = {"--no-times"};
  return job;
}

TEST(TaskScripts, RunTheFramesOfATask) {
  const FarmFolder folder("/farm/out");
  EXPECT_EQ(TaskScripts(folder, job(), 2).tasks(20), R"(#!/bin/sh
#SBATCH --job-name=vtlcmd-scatter
#SBATCH --output="/farm/out/logs/2-%a.log"
#SBATCH --open-mode=append
#SBATCH --array=1-20

set -eu
folder=/farm/out
# Line by line, the frames of the tasks.
frames=$(sed -n "${SLURM_ARRAY_TASK_ID}p" "$folder/submissions/2/frames")
# A task that is started again goes on in a copy of its last journal: where it ran before,
# somebody may still write to that.
task=$folder/journals/2-$SLURM_ARRAY_TASK_ID
journal=$task.journal
last=
restart=0
while [ "$restart" -lt "${SLURM_RESTART_COUNT:-0}" ]; do
  [ -e "$journal" ] && last=$journal
  restart=$((restart + 1))
  journal=$task-$restart.journal
done
[ -z "$last" ] || cp "$last" "$journal"

cd '/home/me/my project'
exec /opt/vtlcmd/bin/vtlcmd run graphs/scatter.json \
  '--set=name=it'\''s' \
  --quiet \
  "--frames=$frames" --job-frames=1-1000 \
  "--journal=$journal" --resume
)");
}

TEST(TaskScripts, MakeTheReports) {
  const FarmFolder folder("/farm/out");
  EXPECT_EQ(TaskScripts(folder, job(), 2).report(), R"(#!/bin/sh
#SBATCH --job-name=vtlcmd-scatter-report
#SBATCH --output="/farm/out/logs/2-report.log"
#SBATCH --open-mode=append

set -u
folder=/farm/out
code=0
cd "$folder/journals"
/opt/vtlcmd/bin/vtlcmd report *.journal -o /farm/out/report.json --no-times || code=$?
/opt/vtlcmd/bin/vtlcmd report *.journal -o /home/me/run.html --no-times || code=$?
echo "$code" >"$folder/submissions/2/reported"
exit "$code"
)");
}

TEST(TaskScripts, QuoteForTheSchedulerToo) {
  const FarmFolder folder("/farm/100% \"mine\" \\ yours");
  const std::string script = TaskScripts(folder, job(), 1).tasks(1);
  EXPECT_NE(script.find("#SBATCH --output=\"/farm/100%% \\\"mine\\\" \\\\ yours/logs/1-%a.log\"\n"),
            std::string::npos)
      << script;
  EXPECT_NE(script.find("folder='/farm/100% \"mine\" \\ yours'\n"), std::string::npos) << script;
}

TEST(TaskScripts, NameJobsInPlainLetters) {
  FarmJob named = job();
  named.graph = "a b;ü.json";
  const std::string script = TaskScripts(FarmFolder("/farm"), named, 1).tasks(1);
  EXPECT_NE(script.find("--job-name=vtlcmd-a_b___\n"), std::string::npos) << script;
}

}  // namespace
}  // namespace vtlcmd::runner
