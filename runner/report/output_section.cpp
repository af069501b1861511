#include "report/output_section.h"

#include <algorithm>
#include <ostream>

#include "report/histogram_plot.h"
#include "report/html_text.h"
#include "report/point_views.h"

namespace vtlcmd::runner {
namespace {

/// So many different texts are shown at once.
constexpr std::size_t mostOpenTexts = 3;
constexpr std::ptrdiff_t mostOpenLines = 16;

void writeNote(std::ostream& page, const char* what, const FrameRanges& frames) {
  if (frames.count() == 0) return;
  page << "<p class='none'>" << what << (frames.count() == 1 ? " in frame " : " in frames ")
       << htmlText(frames.text()) << "</p>\n";
}

std::vector<std::string> columnsOf(const std::vector<OutputPlots::Constants>& rows) {
  std::vector<std::string> columns;
  for (const OutputPlots::Constants& row : rows) {
    for (const auto& [name, number] : row.numbers) {
      if (std::find(columns.begin(), columns.end(), name) == columns.end()) columns.push_back(name);
    }
  }
  return columns;
}

}  // namespace

void OutputSection::add(const PageFrame& frame) {
  const Json& outputs = frame.content.at("outputs");
  const auto found = outputs.find(name_);
  if (found == outputs.end()) return notReported_.add(frame.index, frame.text);
  if (!found->at("shown")) {
    notShown_.add(frame.index, frame.text);
  } else {
    texts_.add(frame.index, frame.text, found->at("text").get_ref<const std::string&>());
  }
  // The exact value of a string is its text.
  if (found->contains("value") && type_ != "string")
    plots_.add(frame.index, frame.number, found->at("value"));
  if (found->contains("picture")) addPicture(found->at("picture"), frame.text);
}

void OutputSection::addPicture(const Json& picture, const std::string& frame) {
  // The first one may be larger.
  if (!pictures_.empty() && pictures_.size() > room_ / 2) {
    ++morePictures_;
    return;
  }
  if (picture.contains("histogram")) pictures_ += histogramHtml(picture["histogram"], frame);
  if (picture.contains("points")) pictures_ += pointViewsHtml(picture, frame);
}

void OutputSection::writePictures(std::ostream& page) const {
  if (pictures_.empty()) return;
  page << "<div class='pictures'>\n" << pictures_ << "</div>\n";
  if (morePictures_ > 0)
    page << "<p class='none'>" << counted(morePictures_, "picture") << " more in the journal</p>\n";
}

void OutputSection::write(std::ostream& page, const FrameRange& frames) const {
  page << "<article><h3>" << htmlText(name_) << " <span class='type'>" << htmlText(type_)
       << "</span></h3><div>\n";
  writePlots(page, frames);
  writePictures(page);
  writeConstants(page);
  writeTexts(page);
  writeNote(page, "Shown without a value", notShown_);
  writeNote(page, "Not reported", notReported_);
  page << "</div></article>\n";
}

void OutputSection::writePlots(std::ostream& page, const FrameRange& frames) const {
  const std::vector<LinePlot> plots = plots_.changing();
  if (plots.empty()) return;
  page << "<div class='plots'>\n";
  for (const LinePlot& plot : plots) page << linePlotHtml(plot, frames);
  page << "</div>\n";
}

void OutputSection::writeConstants(std::ostream& page) const {
  const std::vector<OutputPlots::Constants> rows = plots_.constants();
  if (rows.empty() || isOnlyText(rows.front().numbers.front().second)) return;
  const std::vector<std::string> columns = columnsOf(rows);
  page << "<table class='numbers'><tr><td>";
  for (const std::string& column : columns) page << "<th scope='col'>" << htmlText(column);
  page << '\n';
  for (const OutputPlots::Constants& row : rows) {
    page << "<tr><th scope='row'>" << htmlText(row.title);
    for (const std::string& column : columns) {
      const auto found = std::find_if(row.numbers.begin(), row.numbers.end(),
                                      [&](const auto& number) { return number.first == column; });
      page << "<td>" << (found == row.numbers.end() ? "" : htmlText(found->second));
    }
    page << '\n';
  }
  page << "</table>\n";
}

void OutputSection::writeTexts(std::ostream& page) const {
  const std::size_t count = texts_.first().size() + texts_.last().size();
  if (count == 0) return;
  if (count == 1) return writeText(page, texts_.first().front().text);
  page << "<details" << (count <= mostOpenTexts ? " open" : "") << "><summary>"
       << groupedDigits(count) << " texts</summary><table class='texts'>\n";
  for (const FoldedTexts::Row& row : texts_.first()) writeRow(page, row);
  if (texts_.leftOut() > 0)
    page << "<tr class='none'><td>…<td>" << counted(texts_.leftOut(), "frame")
         << " left out here; the journal has them\n";
  for (const FoldedTexts::Row& row : texts_.last()) writeRow(page, row);
  page << "</table></details>\n";
}

/// A long one is folded: its numbers stand in the table already.
void OutputSection::writeText(std::ostream& page, const std::string& text) {
  const bool isLong = std::count(text.begin(), text.end(), '\n') > mostOpenLines;
  if (isLong) page << "<details><summary>Report text</summary>";
  page << "<pre>" << htmlText(text) << "</pre>";
  if (isLong) page << "</details>";
  page << '\n';
}

bool OutputSection::isOnlyText(const std::string& text) const {
  return texts_.first().size() == 1 && texts_.last().empty() && texts_.first().front().text == text;
}

void OutputSection::writeRow(std::ostream& page, const FoldedTexts::Row& row) {
  page << "<tr><th>" << htmlText(row.frames.text()) << "<td><pre>" << htmlText(row.text)
       << "</pre>\n";
}

}  // namespace vtlcmd::runner
