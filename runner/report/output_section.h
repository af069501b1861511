#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "report/folded_texts.h"
#include "report/output_plots.h"
#include "report/page_frame.h"

namespace vtlcmd::runner {

/// One output of a run in a page: its plots over the frames, what doesn't change, pictures and
/// report texts.
class OutputSection {
 public:
  /// `frameCount` is that of the whole job; `room` is for texts, and for pictures again,
  /// in bytes.
  OutputSection(std::string name, std::string type, std::uint64_t frameCount, std::size_t room)
      : name_(std::move(name)),
        type_(std::move(type)),
        room_(room),
        plots_(frameCount),
        texts_(room) {}

  /// What the output's name is in a frame's line; the frame may not have it.
  const std::string& name() const noexcept { return name_; }

  void add(const PageFrame& frame);

  /// `frames` are those of the job.
  void write(std::ostream& page, const FrameRange& frames) const;

 private:
  void writeConstants(std::ostream& page) const;
  void writePlots(std::ostream& page, const FrameRange& frames) const;
  void addPicture(const Json& picture, const std::string& frame);
  void writePictures(std::ostream& page) const;
  void writeTexts(std::ostream& page) const;
  static void writeText(std::ostream& page, const std::string& text);
  static void writeRow(std::ostream& page, const FoldedTexts::Row& row);
  /// Whether the text is what is reported in all frames.
  bool isOnlyText(const std::string& text) const;

  std::string name_;
  std::string type_;
  std::size_t room_;
  OutputPlots plots_;
  FoldedTexts texts_;
  std::string pictures_;
  /// For which there was no room.
  std::uint64_t morePictures_ = 0;
  FrameRanges notShown_;
  FrameRanges notReported_;
};

}  // namespace vtlcmd::runner
