#include "readers/npy_header.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <optional>
#include <string_view>

#include "readers/read_error.h"
#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

constexpr std::string_view magic = "\x93NUMPY";

/// The format's own library reads headers of up to 10,000 bytes.
constexpr std::size_t longestHeader = 1 << 20;

/// Reads the header's text, a Python dictionary with three keys.
class DictionaryParser {
 public:
  explicit DictionaryParser(std::string_view text) : rest_(text) {}

  NpyHeader parse() {
    std::optional<std::string> descriptor;
    std::optional<bool> fortranOrder;
    std::optional<std::vector<std::uint64_t>> shape;
    expect('{');
    while (!take('}')) {
      const std::string key = text();
      expect(':');
      if (key == "descr") {
        descriptor = text();
      } else if (key == "fortran_order") {
        fortranOrder = flag();
      } else if (key == "shape") {
        shape = tuple();
      } else {
        fail("the key " + inQuotes(key) + " has no meaning");
      }
      if (!take(',')) {
        expect('}');
        break;
      }
    }
    if (!descriptor || !fortranOrder || !shape) fail("a key is missing");
    skipBlanks();
    if (!rest_.empty()) fail("something follows its '}'");
    return {*std::move(descriptor), *fortranOrder, *std::move(shape)};
  }

 private:
  [[noreturn]] static void fail(const std::string& reason) {
    throw ReadError("the header can't be understood: " + reason);
  }

  void skipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\n"), rest_.size()));
  }

  bool take(char wanted) {
    skipBlanks();
    if (!rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  void expect(char wanted) {
    if (!take(wanted)) fail(std::string("expected '") + wanted + "'");
  }

  std::string text() {
    skipBlanks();
    const char quote = rest_.empty() ? '\0' : rest_.front();
    if (quote != '\'' && quote != '"') fail("expected a text; arrays of records aren't supported");
    const std::size_t end = rest_.find(quote, 1);
    if (end == std::string_view::npos) fail("a text has no end");
    std::string result(rest_.substr(1, end - 1));
    rest_.remove_prefix(end + 1);
    return result;
  }

  bool flag() {
    skipBlanks();
    for (const std::string_view word : {"True", "False"}) {
      if (!rest_.starts_with(word)) continue;
      rest_.remove_prefix(word.size());
      return word == "True";
    }
    fail("expected True or False");
  }

  std::vector<std::uint64_t> tuple() {
    std::vector<std::uint64_t> numbers;
    expect('(');
    while (!take(')')) {
      skipBlanks();
      std::uint64_t number = 0;
      const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
      if (error != std::errc()) fail("expected a number of elements");
      rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
      numbers.push_back(number);
      if (!take(',')) {
        expect(')');
        break;
      }
    }
    return numbers;
  }

  std::string_view rest_;
};

std::string take(ByteSource& file, std::size_t count) {
  std::string text(count, '\0');
  text.resize(file.read({reinterpret_cast<unsigned char*>(text.data()), count}));
  return text;
}

std::string takeWhole(ByteSource& file, std::size_t count) {
  std::string text = take(file, count);
  if (text.size() < count) throw ReadError("the file is cut short in its header");
  return text;
}

}  // namespace

NpyHeader parseNpyHeader(ByteSource& file) {
  if (take(file, magic.size()) != magic) throw ReadError("this is no NumPy array file");
  const auto version = static_cast<unsigned char>(takeWhole(file, 2)[0]);
  if (version < 1 || version > 3)
    throw ReadError("the format version " + std::to_string(version) + " isn't supported");
  const std::string lengthBytes = takeWhole(file, version == 1 ? 2 : 4);
  std::size_t length = 0;
  for (std::size_t i = 0; i < lengthBytes.size(); ++i)
    length |= std::size_t{static_cast<unsigned char>(lengthBytes[i])} << (8 * i);
  if (length > file.remaining()) throw ReadError("the file is cut short in its header");
  if (length > longestHeader) throw ReadError("the header has more than 1048576 bytes");
  return DictionaryParser(takeWhole(file, length)).parse();
}

std::string npyHeader(std::string_view type, std::span<const std::uint64_t> shape) {
  std::string text = "{'descr': '";
  text += std::endian::native == std::endian::little ? '<' : '>';
  text += type;
  text += "', 'fortran_order': False, 'shape': (";
  for (const std::uint64_t length : shape) text += std::to_string(length) + ", ";
  text += "), }";
  // Readers that map the file want the elements at a multiple of 64.
  const std::size_t prefix = magic.size() + 4;
  text.append(63 - (prefix + text.size()) % 64, ' ');
  text += '\n';
  std::string header(magic);
  header +=
      {'\1', '\0', static_cast<char>(text.size() & 0xFFU), static_cast<char>(text.size() >> 8U)};
  return header + text;
}

}  // namespace vtlcmd::runner
