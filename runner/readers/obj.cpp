#include "readers/obj.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <map>
#include <string>
#include <string_view>

#include "readers/read_error.h"
#include "readers/text_lines.h"
#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

namespace Math = Vantrel::Math;

constexpr std::string_view blanks = " \t\v\f";

/// Takes the first word off a line; empty when there is none.
std::string_view takeWord(std::string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
  const std::string_view word = line.substr(0, line.find_first_of(blanks));
  line.remove_prefix(word.size());
  return word;
}

template <typename T>
T numberFrom(std::string_view word) {
  std::string_view digits = word;
  if (digits.starts_with('+')) digits.remove_prefix(1);
  T number{};
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc() || stop != end || digits.empty())
    throw ReadError(inQuotes(word) + " is no number");
  return number;
}

/// The numbers in the rest of a line, up to as many as there is room for.
template <std::size_t Most>
struct Numbers {
  explicit Numbers(std::string_view line, std::size_t least) {
    for (std::string_view word = takeWord(line); !word.empty(); word = takeWord(line)) {
      if (count == Most)
        throw ReadError("there are more than " + std::to_string(Most) + " numbers");
      values[count++] = numberFrom<float>(word);
    }
    if (count < least)
      throw ReadError("there are fewer than " + std::to_string(least) + " numbers");
  }

  std::array<float, Most> values{};
  std::size_t count = 0;
};

/// Corners may be named before what they name. The largest index of a kind, from 0, and where it
/// was used.
struct LargestIndex {
  const char* kind;
  std::size_t index = 0;
  std::size_t line = 0;

  void check(std::size_t count) const {
    if (line == 0 || index < count) return;
    throw ReadError("line " + std::to_string(line) + ": there is no " + kind + " " +
                    std::to_string(index + 1));
  }
};

class ObjParser {
 public:
  explicit ObjParser(ByteSource& file) : lines_(file) {}

  MeshData parse() {
    for (std::string line; nextStatement(line);) {
      try {
        readStatement(line);
      } catch (const ReadError& error) {
        throw ReadError("line " + std::to_string(lines_.number()) + ": " + error.what());
      }
    }
    if (data_.positions.empty()) throw ReadError("there are no points in it");
    largestPoint_.check(data_.positions.size());
    largestUv_.check(uvs_.size());
    largestNormal_.check(normals_.size());
    resolveCorners();
    data_.leftOut = leftOutText();
    return std::move(data_);
  }

 private:
  /// A line, with those behind it that it says it goes on in.
  bool nextStatement(std::string& line) {
    if (!lines_.next(line)) return false;
    for (std::string more; line.ends_with('\\') && lines_.next(more);) {
      line.back() = ' ';
      line += more;
    }
    return true;
  }

  void readStatement(std::string_view line) {
    line = line.substr(0, line.find('#'));
    const std::string_view word = takeWord(line);
    if (word.empty()) return;
    const Statement* const row =
        std::find_if(std::begin(statements), std::end(statements),
                     [word](const Statement& s) { return s.word == word; });
    if (row == std::end(statements)) throw ReadError("there is no such statement in OBJ files");
    if (row->read != nullptr) (this->*row->read)(line);
    if (row->element != nullptr) ++leftOut_[row->element];
  }

  /// A position; a weight or a colour may follow.
  void readVertex(std::string_view line) {
    const Numbers<7> numbers(line, 3);
    const auto& v = numbers.values;
    checkCount(data_.positions.size());
    data_.positions.push_back({{v[0], v[1], v[2]}});
    if (numbers.count < 6) return;
    // Vertices before it had none.
    colors_.resize(data_.positions.size() - 1, {{1, 1, 1, 1}});
    colors_.push_back({{v[3], v[4], v[5], numbers.count == 7 ? v[6] : 1}});
  }

  void readUv(std::string_view line) {
    const Numbers<3> numbers(line, 1);
    uvs_.push_back({{numbers.values[0], numbers.values[1]}});
  }

  void readNormal(std::string_view line) {
    const Numbers<3> numbers(line, 3);
    normals_.push_back({{numbers.values[0], numbers.values[1], numbers.values[2]}});
  }

  void readFace(std::string_view line) {
    std::int32_t size = 0;
    for (std::string_view word = takeWord(line); !word.empty(); word = takeWord(line)) {
      readCorner(word);
      ++size;
    }
    if (size == 0) throw ReadError("the face has no corners");
    data_.faceSizes.push_back(size);
  }

  /// POINT, POINT/UV, POINT//NORMAL or POINT/UV/NORMAL.
  void readCorner(std::string_view word) {
    std::array<std::string_view, 3> parts;
    std::string_view rest = word;
    for (std::size_t i = 0; i < parts.size(); ++i) {
      const std::size_t slash = rest.find('/');
      parts[i] = rest.substr(0, slash);
      if (slash == std::string_view::npos) {
        rest = {};
        break;
      }
      rest.remove_prefix(slash + 1);
      if (i + 1 == parts.size()) throw ReadError(inQuotes(word) + " is no corner");
    }
    checkCount(data_.cornerPoints.size());
    data_.cornerPoints.push_back(indexFrom(parts[0], data_.positions.size(), largestPoint_));
    if (!parts[1].empty()) cornerUvs_.push_back(indexFrom(parts[1], uvs_.size(), largestUv_));
    if (!parts[2].empty())
      cornerNormals_.push_back(indexFrom(parts[2], normals_.size(), largestNormal_));
  }

  /// Counted from 1, or back from the last one so far.
  std::int32_t indexFrom(std::string_view word, std::size_t count, LargestIndex& largest) const {
    const auto number = numberFrom<std::int32_t>(word);
    const auto available = static_cast<std::int64_t>(count);
    const std::int64_t index = number < 0 ? available + number : std::int64_t{number} - 1;
    if (number == 0 || index < 0)
      throw ReadError("there is no " + std::string(largest.kind) + " " + std::string(word));
    const auto position = static_cast<std::size_t>(index);
    if (largest.line == 0 || position > largest.index) {
      largest.index = position;
      largest.line = lines_.number();
    }
    return static_cast<std::int32_t>(index);
  }

  static void checkCount(std::size_t count) {
    if (count >= static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
      throw ReadError("there are more points or corners than an int counts");
  }

  /// "2 curves, 1 line"
  std::string leftOutText() const {
    std::string text;
    for (const auto& [element, count] : leftOut_) {
      text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + std::string(element) +
              (count == 1 ? "" : "s");
    }
    return text;
  }

  /// Gives the corners what they name.
  void resolveCorners() {
    if (!colors_.empty()) colors_.resize(data_.positions.size(), {{1, 1, 1, 1}});
    if (data_.faceSizes.empty()) {
      data_.colors = std::move(colors_);
      return;
    }
    const auto resolve = [](const auto& values, const std::vector<std::int32_t>& indices,
                            auto& to) {
      to.reserve(indices.size());
      for (const std::int32_t index : indices)
        to.push_back(values[static_cast<std::size_t>(index)]);
    };
    resolve(uvs_, cornerUvs_, data_.uvs);
    resolve(normals_, cornerNormals_, data_.normals);
    if (!colors_.empty()) resolve(colors_, data_.cornerPoints, data_.colors);
  }

  struct Statement {
    std::string_view word;
    /// Null for what isn't read.
    void (ObjParser::*read)(std::string_view);
    /// What it would add to the mesh if it were read; null for what adds no geometry.
    const char* element = nullptr;
  };
  static const Statement statements[39];

  TextLines lines_;
  MeshData data_;
  std::vector<Math::float4> colors_;
  std::vector<Math::float2> uvs_;
  std::vector<Math::float3> normals_;
  std::vector<std::int32_t> cornerUvs_;
  std::vector<std::int32_t> cornerNormals_;
  /// By element, how many.
  std::map<std::string_view, std::size_t> leftOut_;
  LargestIndex largestPoint_{"vertex"};
  LargestIndex largestUv_{"texture coordinate"};
  LargestIndex largestNormal_{"normal"};
};

const ObjParser::Statement ObjParser::statements[]{
    {"v", &ObjParser::readVertex},
    {"vt", &ObjParser::readUv},
    {"vn", &ObjParser::readNormal},
    {"f", &ObjParser::readFace},
    {"fo", &ObjParser::readFace},
    {"g", nullptr},
    {"o", nullptr},
    {"s", nullptr},
    {"mg", nullptr},
    {"l", nullptr, "line"},
    {"p", nullptr, "point element"},
    {"curv", nullptr, "curve"},
    {"curv2", nullptr, "curve"},
    {"surf", nullptr, "surface"},
    {"call", nullptr, "included file"},
    {"usemtl", nullptr},
    {"mtllib", nullptr},
    {"usemap", nullptr},
    {"maplib", nullptr},
    {"bevel", nullptr},
    {"c_interp", nullptr},
    {"d_interp", nullptr},
    {"lod", nullptr},
    {"shadow_obj", nullptr},
    {"trace_obj", nullptr},
    // What belongs to curves and surfaces.
    {"vp", nullptr},
    {"cstype", nullptr},
    {"deg", nullptr},
    {"bmat", nullptr},
    {"step", nullptr},
    {"parm", nullptr},
    {"trim", nullptr},
    {"hole", nullptr},
    {"scrv", nullptr},
    {"sp", nullptr},
    {"end", nullptr},
    {"con", nullptr},
    {"ctech", nullptr},
    {"stech", nullptr},
};

}  // namespace

MeshData parseObj(ByteSource& file) { return ObjParser(file).parse(); }

}  // namespace vtlcmd::runner
