#include "command_line/graph_run.h"

#include <iostream>
#include <system_error>
#include <utility>

#include "command_line/frame_run.h"
#include "command_line/journal_place.h"
#include "command_line/port_kinds.h"
#include "command_line/save_options.h"
#include "command_line/vector_notation.h"
#include "graph/graph_file.h"
#include "journal/run_journal.h"
#include "journal/run_line.h"
#include "platform/interrupt.h"
#include "text/control_characters.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

/// What the run will complain of in every frame is told once, with a way out.
void tellOfPorts(const LoadedRun& loaded) {
  for (const std::string& line : unsettablePorts(loaded.graph, loaded.texts))
    std::cerr << "vtlcmd: " << line << '\n';
  for (const std::string& line : vectorNotationHints(loaded.graph, loaded.texts))
    std::cerr << "vtlcmd: " << withoutControls(line) << '\n';
}

OutputError journalError(const std::filesystem::path& file, const std::system_error& error) {
  const std::string name = file.empty() ? "the folder for temporary files" : fileText(file);
  return {"the journal can't be written to " + name, error};
}

/// A run with a journal and the reports of it.
class RecordedRun {
 public:
  RecordedRun(const LoadedRun& loaded, const RunOptions& options, RunReports& reports,
              const std::string& content, OpenJournal journal)
      : loaded_(loaded),
        options_(options),
        reports_(reports),
        isDone_(std::move(journal.earlier.isDone)),
        journal_(std::move(journal.file), content,
                 runTimes(loaded.settings.arguments, journal.earlier.attempt + 1)) {
    for (const std::filesystem::path& file : journal.earlier.filesRead) reports.keep(file);
  }

  ExitCode run() {
    runFrames();
    writeReports();
    const bool isComplete = !hasOutputError_;
    if (isComplete && !options_.journal) journal_.file().remove();
    if (!isComplete && !journal_.file().path().empty()) {
      std::cerr << "vtlcmd: the frames that ran are in " << fileText(journal_.file().path())
                << '\n';
    }
    return code_;
  }

 private:
  void runFrames() {
    try {
      const RunEnd end = FrameRun(loaded_, options_, reports_, &journal_, isDone_).run();
      code_ = static_cast<ExitCode>(end.exitCode);
      journal_.end(end);
    } catch (const std::system_error& error) {
      note(journalError(journal_.file().path(), error));
    }
  }

  void writeReports() {
    try {
      reports_.write(Journals(journal_.file().lines(), fileText(journal_.file().path())));
    } catch (const OutputError& error) {
      note(error);
    }
  }

  void note(const OutputError& error) {
    std::cerr << "vtlcmd: " << error.what() << '\n';
    code_ = worst(code_, error);
    hasOutputError_ = true;
  }

  const LoadedRun& loaded_;
  const RunOptions& options_;
  RunReports& reports_;
  /// By place, what earlier runs have done; empty without such.
  std::vector<bool> isDone_;
  RunJournal journal_;
  ExitCode code_ = ExitCode::success;
  bool hasOutputError_ = false;
};

/// All but the plug-in.
LoadedRun prepareRun(Graph graph, const RunOptions& options,
                     const std::vector<std::string>& arguments) {
  LoadedRun run;
  run.graph = std::move(graph);
  const PortTexts texts = textsFrom(options, run.graph);
  run.texts = texts.byPort();
  run.textFiles = texts.files();
  selectOutputs(options, run.graph);
  lookUpTextsInWorkingDirectory(run.graph, run.texts);
  run.settings = settingsFrom(options, texts, arguments);
  run.frames = options.frameOptions.settings(run.settings.frames.size());
  run.settings.filesRead = filesReadBy(run.graph, run.texts);
  run.saves = savedOutputsFrom(options.saves, run.graph, run.settings.frames);
  for (const SavedOutput& saved : run.saves) {
    run.settings.saves.push_back(
        {saved.output, [saved](double frame, const Orvel::Value& value,
                               const std::set<std::filesystem::path>& files) {
           return saveValue(saved, frame, value, files);
         }});
  }
  run.plugInFile = options.report.plugInFile();
  return run;
}

}  // namespace

LoadedRun loadRun(const RunOptions& options, const std::vector<std::string>& arguments) {
  refuseSharedInput(options.graph, options.files);
  LoadedRun run = prepareRun(loadGraph(options.graph), options, arguments);
  std::vector<std::filesystem::path> filesRead = run.settings.filesRead;
  filesRead.insert(filesRead.end(), run.textFiles.begin(), run.textFiles.end());
  OutputTargets targets = refuseTargets(options, std::move(filesRead));
  for (const SavedOutput& saved : run.saves)
    targets.addSeries("--save", saved.file, run.settings.frames);
  run.plugIn = std::make_unique<PlugIn>(run.plugInFile);
  return run;
}

WorkerTask taskOf(const LoadedRun& loaded) {
  WorkerTask task{loaded.settings.arguments, loaded.graph.text, {}, {}, loaded.frames.workers};
  for (std::size_t i = 0; i < loaded.texts.size(); ++i) {
    const GraphPort& port = loaded.graph.ports[i];
    if (loaded.texts[i])
      (port.isJob ? task.jobs : task.inputs).push_back(port.name + "=" + *loaded.texts[i]);
  }
  return task;
}

LoadedRun loadRunInWorker(RunOptions options, const WorkerTask& task) {
  options.files.clear();
  options.inputs = task.inputs;
  options.jobs = task.jobs;
  LoadedRun run = prepareRun(graphFrom(options.graph, task.graph), options, task.words);
  run.plugIn = std::make_unique<PlugIn>(run.plugInFile);
  return run;
}

OutputTargets refuseTargets(const RunOptions& options,
                            std::vector<std::filesystem::path> filesRead) {
  filesRead.push_back(filePath(options.graph));
  filesRead.push_back(options.report.plugInFile());
  OutputTargets targets(std::move(filesRead));
  for (const std::string& report : options.reports) targets.add("--report", report);
  if (options.journal) targets.add("--journal", *options.journal);
  return targets;
}

ExitCode runGraph(const LoadedRun& loaded, const RunOptions& options, RunReports& reports) {
  if (loaded.settings.verbosity >= levelWarning) tellOfPorts(loaded);
  if (!needsJournal(options, reports)) {
    refuseLostResume(options);
    rememberInterrupts();
    return static_cast<ExitCode>(FrameRun(loaded, options, reports, nullptr, {}).run().exitCode);
  }
  const std::string content =
      runContent(loaded.graph, loaded.settings, loaded.plugInFile, options.report.printLimit());
  OpenJournal journal = openJournal(options, reports, content, loaded.settings.frames);
  rememberInterrupts();
  return RecordedRun(loaded, options, reports, content, std::move(journal)).run();
}

void reportLoadFailure(const std::string& graph, const std::vector<std::string>& arguments,
                       const RunReports& reports, const std::string& text) {
  RunJournal journal(JournalFile::temporary(), unloadedRunContent(filePath(graph)),
                     runTimes(arguments));
  journal.end({"not loaded",
               static_cast<int>(ExitCode::notLoaded),
               {{vtlcmdSource, {{levelCritical, {text}}}}}});
  reports.write(Journals(journal.file().lines(), "the journal"));
  journal.file().remove();
}
}  // namespace vtlcmd::runner
