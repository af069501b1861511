#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace vtlcmd::runner {

using Bytes = std::vector<unsigned char>;

/// The bytes of numbers as the machine, a little-endian one, keeps them.
template <typename T>
Bytes bytesOf(const std::vector<T>& numbers) {
  Bytes bytes(numbers.size() * sizeof(T));
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const T number = numbers[i];
    std::memcpy(bytes.data() + i * sizeof(T), &number, sizeof(T));
  }
  return bytes;
}

/// An array file with the given text of a header.
inline Bytes npyFile(const std::string& header, const Bytes& data, unsigned char version = 1) {
  const std::string magic = "\x93NUMPY";
  Bytes file(magic.begin(), magic.end());
  file.push_back(version);
  file.push_back(0);
  for (int i = 0; i < (version == 1 ? 2 : 4); ++i)
    file.push_back(static_cast<unsigned char>(header.size() >> (8 * i)));
  file.insert(file.end(), header.begin(), header.end());
  file.insert(file.end(), data.begin(), data.end());
  return file;
}

/// The text that the format's own library writes.
inline std::string npyHeader(const std::string& descriptor, const std::string& shape,
                             const std::string& fortranOrder = "False") {
  return "{'descr': '" + descriptor + "', 'fortran_order': " + fortranOrder +
         ", 'shape': " + shape + ", }          \n";
}

}  // namespace vtlcmd::runner
