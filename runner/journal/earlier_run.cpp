#include "journal/earlier_run.h"

#include <map>

#include "journal/content_hash.h"
#include "journal/journal_reader.h"
#include "journal/run_key.h"
#include "text/json.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

/// What must be the same.
Json identityOf(const Json& run) {
  return {{"frames", run.value("frames", "")},
          {"job_frames", run.value("job_frames", "")},
          {"key", run.value("key", Json::object())}};
}

class Reader {
 public:
  Reader(std::istream& stream, const std::string& name, const std::string& runContent,
         const FrameList& frames)
      : stream_(stream),
        reader_(stream, name),
        name_(name),
        identity_(identityOf(parseJson(runContent))) {
    earlier_.isDone.resize(frames.size());
    for (std::size_t place = 0; place < frames.size(); ++place)
      places_.emplace_hint(places_.end(), frames.placeInWhole(place), place);
  }

  std::optional<EarlierRun> read() {
    while (reader_.next()) {
      if (earlier_.size == 0 && reader_.line().kind != line_kinds::run) reader_.fail();
      try {
        readLine();
      } catch (const Json::exception&) {
        reader_.fail();
      }
      earlier_.size = static_cast<std::uint64_t>(stream_.tellg());
    }
    if (earlier_.size == 0) return std::nullopt;
    return std::move(earlier_);
  }

 private:
  void readLine() {
    const JournalLine& line = reader_.line();
    if (line.kind == line_kinds::run) {
      const std::string difference =
          keyDifference(identity_, identityOf(reader_.parse(line.content)));
      if (!difference.empty())
        throw DifferentRun(name_ + " is the journal of another run, which differs in " +
                           difference);
      earlier_.attempt = reader_.parse(line.times).at("attempt");
    } else if (line.kind == line_kinds::frame) {
      addFrame(reader_.parse(line.content));
    }
  }

  void addFrame(const Json& frame) {
    const auto place = places_.find(frame.at("index").get<std::size_t>());
    if (!frame.at("succeeded").get<bool>() || place == places_.end()) return;
    const Json files = frame.value("files", Json::object());
    for (const auto& [file, hash] : files.items()) requireUnchanged(file, hash);
    earlier_.isDone[place->second] = true;
  }

  void requireUnchanged(const std::string& file, const Json& hash) {
    // Each is read once.
    if (!earlier_.filesRead.insert(filePath(file)).second) return;
    const std::optional<std::string> now = contentHash(filePath(file));
    if (hash != (now ? Json(*now) : Json(nullptr)))
      throw DifferentRun(name_ + " is the journal of another run, which read " + file +
                         " with another content");
  }

  std::istream& stream_;
  JournalReader reader_;
  const std::string& name_;
  Json identity_;
  /// By place in the whole job.
  std::map<std::size_t, std::size_t> places_;
  EarlierRun earlier_;
};

}  // namespace

std::optional<EarlierRun> readEarlierRun(const std::filesystem::path& journal,
                                         const std::string& runContent, const FrameList& frames) {
  const std::string name = fileText(journal);
  std::ifstream stream = openJournalFile(name);
  return Reader(stream, name, runContent, frames).read();
}

}  // namespace vtlcmd::runner
