#include "readers/data_file.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "readers/read_error.h"
#include "readers/reader_table.h"
#include "runner/support/npy_bytes.h"

namespace vtlcmd::runner {
namespace {

class DataFile : public testing::Test {
 protected:
  void SetUp() override { std::filesystem::create_directories(folder_); }
  ~DataFile() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path write(const std::string& name, const Bytes& bytes) {
    const std::filesystem::path file = folder_ / name;
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return file;
  }

  std::filesystem::path folder_ = std::filesystem::path(testing::TempDir()) / "data_file_test";
};

template <typename Read>
std::string dataFileRefusal(Read&& read) {
  try {
    read();
  } catch (const ReadError& error) {
    return error.what();
  }
  return "accepted";
}

const Bytes twoInts = npyFile(npyHeader("<i4", "(2,)"), bytesOf<std::int32_t>({1, 2}));

TEST_F(DataFile, ExtensionsAreOfAnyCase) {
  EXPECT_EQ(&readerFor("a.NPY"), &readerFor("b.npy"));
  EXPECT_EQ(&readerFor("a.Obj"), &readerFor("b.obj"));
  EXPECT_NE(&readerFor("a.obj"), &readerFor("a.ply"));
  const std::vector<DataValue> values = readDataFile(write("TWO.NPY", twoInts), {});
  ASSERT_EQ(values.size(), 1U);
  ASSERT_TRUE(values[0].facts);
  EXPECT_EQ(describe(*values[0].facts), "int32, 2");
}

TEST_F(DataFile, ArraysMayHaveAnyExtension) {
  EXPECT_EQ(readArrays(write("two.dat", twoInts), {}).size(), 1U);
}

TEST_F(DataFile, ValuesAreNamedBehindTheirFile) {
  const std::filesystem::path file = write("two.npz", twoInts);
  EXPECT_EQ(valuePathFrom(file / "a").file, file);
  EXPECT_EQ(valuePathFrom(file / "a").name, "a");
  EXPECT_EQ(valuePathFrom(file).file, file);
  EXPECT_EQ(valuePathFrom(file).name, "");
  EXPECT_EQ(valuePathFrom(folder_ / "absent" / "a").file, folder_ / "absent" / "a");
}

TEST_F(DataFile, FilesAreNamed) {
  EXPECT_EQ(dataFileRefusal([] { readDataFile("no_such_folder/x.npy", {}); }),
            "no_such_folder/x.npy: No such file or directory");
  const std::filesystem::path cut = write("cut.npy", Bytes(3));
  EXPECT_EQ(dataFileRefusal([&] { readArrays(cut, {}); }),
            cut.string() + ": this is no NumPy array file");
}

TEST_F(DataFile, FoldersAreRefused) {
  const std::filesystem::path folder = folder_ / "folder.npy";
  std::filesystem::create_directory(folder);
  EXPECT_EQ(dataFileRefusal([&] { readDataFile(folder, {}); }),
            folder.string() + ": it is a folder; only regular files are read");
}

TEST_F(DataFile, ArraysAreNoMeshes) {
  const std::filesystem::path array = write("two.npy", twoInts);
  EXPECT_EQ(dataFileRefusal([&] { readMesh(array); }), array.string() + ": it is no mesh");
}

}  // namespace
}  // namespace vtlcmd::runner
