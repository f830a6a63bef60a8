// Files as a person meets them: which format a name gives, and that nothing is lost where one can't be
// written.
#include "platform/office/office_files.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "base/runtime_error.h"
#include "platform/office/program_path.h"
#include "platform/office/replace_file.h"
#include "platform/office/rich_text.h"
#include "tests/unit/platform/office/records.h"

namespace ovindra::office {
namespace {

namespace fs = std::filesystem;

class OfficeFiles : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "office-test-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder_ = name;
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path In(const std::string& name) const { return folder_ / name; }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
      names.push_back(entry.path().filename().string());
    return names;
  }

  void Keep(const std::string& name, const std::string& text) const { std::ofstream(In(name)) << text; }

  std::string Read(const fs::path& file) const {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  fs::path folder_;
};

/// What the action was refused with.
template <typename Act>
RuntimeError ErrorOf(Act act) {
  try {
    act();
  } catch (const RuntimeError& error) {
    return error;
  }
  return {0, "no error"};
}

Workbook OneCell(int row = 1, int column = 1) {
  Workbook workbook;
  workbook.SetText(row, column, "x");
  return workbook;
}

constexpr std::string_view kCompoundFile = "\xD0\xCF\x11\xE0";
constexpr std::string_view kZipFile = "PK";

TEST_F(OfficeFiles, TheNameDecidesTheFormat) {
  const std::pair<const char*, std::string_view> cases[] = {
      {"a.xls", kCompoundFile}, {"b.XLS", kCompoundFile}, {"c", kCompoundFile}, {"d.xlsx.xls", kCompoundFile},
      {"e.txt", kCompoundFile}, {"f.xlsx", kZipFile},     {"g.XLSX", kZipFile}, {"h.xls.XlsX", kZipFile},
  };
  for (const auto& [name, beginning] : cases) {
    WriteWorkbook(OneCell(), In(name));
    EXPECT_EQ(Read(In(name)).substr(0, beginning.size()), beginning) << name;
  }
  EXPECT_EQ(Names().size(), std::size(cases));
}

TEST_F(OfficeFiles, AnEmptyWorkbookIsAFileToo) {
  WriteWorkbook(Workbook(), In("empty.xls"));
  WriteWorkbook(Workbook(), In("empty.xlsx"));
  EXPECT_GT(fs::file_size(In("empty.xls")), 2'000U);
  EXPECT_GT(fs::file_size(In("empty.xlsx")), 2'000U);
}

TEST_F(OfficeFiles, TheLongestSheetOfAnXlsAndOneRowMore) {
  WriteWorkbook(OneCell(65'536, 256), In("a.xls"));
  const std::string before = Read(In("a.xls"));
  const RuntimeError rows = ErrorOf([&] { WriteWorkbook(OneCell(65'537), In("a.xls")); });
  EXPECT_EQ(rows.number(), 75);
  EXPECT_EQ(
      rows.text(),
      "The sheet has 65537 rows, but an .xls workbook holds no more than 65536. Save it under a name that "
      "ends in .xlsx.");
  const RuntimeError columns = ErrorOf([&] { WriteWorkbook(OneCell(1, 257), In("a.xls")); });
  EXPECT_EQ(
      columns.text(),
      "The sheet has 257 columns, but an .xls workbook holds no more than 256. Save it under a name that "
      "ends in .xlsx.");
  EXPECT_EQ(Read(In("a.xls")), before);
  WriteWorkbook(OneCell(65'537), In("b.xlsx"));
  EXPECT_EQ(Names().size(), 2U);
}

TEST_F(OfficeFiles, ATextTooLongForACellIsRefusedInBothFormats) {
  Workbook workbook;
  workbook.SetText(1, 1, std::string(32'767, 'x'));
  for (const char* name : {"a.xls", "a.xlsx"}) WriteWorkbook(workbook, In(name));
  workbook.SetText(1, 1, std::string(32'768, 'x'));
  for (const char* name : {"b.xls", "b.xlsx"}) {
    EXPECT_EQ(ErrorOf([&] { WriteWorkbook(workbook, In(name)); }).text(),
              "A cell of a workbook holds no more than 32767 characters.")
        << name;
  }
  EXPECT_EQ(Names().size(), 2U);
}

TEST_F(OfficeFiles, WhatCantBeWrittenIsError75AndLeavesNothingBehind) {
  fs::create_directory(In("folder.xls"));
  for (const fs::path& file :
       {fs::path(), In("folder.xls"), In("missing/a.xls"), In("missing/a.xlsx"), In("")}) {
    const RuntimeError error = ErrorOf([&] { WriteWorkbook(OneCell(), file); });
    EXPECT_EQ(error.number(), 75) << file;
    EXPECT_EQ(error.text(), "Path/File access error") << file;
    EXPECT_EQ(ErrorOf([&] { WriteDocument({}, file); }).number(), 75) << file;
  }
  EXPECT_EQ(Names(), std::vector<std::string>{"folder.xls"});
  EXPECT_TRUE(fs::is_empty(In("folder.xls")));
}

/// The limit on the size of a file stands for the full disk: a write that would pass it fails.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) {
    before_handler_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{size, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, before_handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*before_handler_)(int) = nullptr;
};

/// The size of the largest file that writing takes: of an xlsx that is its sheet before it is packed, as the
/// package's directory tells it.
std::size_t LargestFile(const std::string& bytes) {
  const std::size_t name = bytes.rfind("xl/worksheets/sheet1.xml");
  if (name == std::string::npos) return bytes.size();
  constexpr std::size_t kFromSizeToName = 46 - 24;
  return NumberAt(bytes, name - kFromSizeToName, 4);
}

/// However little of the file is missing, at whatever step of its making: the old one stays.
TEST_F(OfficeFiles, AFullDiskLeavesTheOldFileWhole) {
  Workbook workbook;
  for (int row = 1; row <= 2'000; ++row) workbook.SetText(row, 1, "row " + std::to_string(row));
  const Document document{12, false, std::string(100'000, 'x')};
  for (const std::string& name : {std::string("a.xls"), std::string("a.xlsx"), std::string("a.doc")}) {
    const auto write = [&] {
      name == "a.doc" ? WriteDocument(document, In(name)) : WriteWorkbook(workbook, In(name));
    };
    write();
    const std::size_t whole = LargestFile(Read(In(name)));
    Keep(name, "old");
    for (std::size_t size = 0; size < whole; size = std::max(size + 1, size + (whole - size) / 3)) {
      const FullDisk full(size);
      ASSERT_EQ(ErrorOf(write).number(), 75) << name << ": " << size << " of " << whole;
    }
    EXPECT_EQ(Read(In(name)), "old") << name;
  }
  EXPECT_EQ(Names().size(), 3U);
}

TEST_F(OfficeFiles, AFailureOfTheWriterIsPassedOn) {
  Keep("a", "old");
  const RuntimeError error =
      ErrorOf([&] { ReplaceFile(In("a"), [](const fs::path&) { throw Overflow(); }); });
  EXPECT_EQ(error.number(), Overflow().number());
  EXPECT_EQ(Read(In("a")), "old");
  EXPECT_EQ(Names().size(), 1U);
}

TEST_F(OfficeFiles, WhatAKilledProgramHasLeftGoesWithTheNextWriteAndWhatIsBeingWrittenStays) {
  Keep(".ovindra-1-0.part", "half");
  ReplaceFile(In("a"), [&](const fs::path& beside) {
    EXPECT_EQ(Names().size(), 1U) << "only what is being written";
    WriteWorkbook(OneCell(), In("b.xls"));
    EXPECT_TRUE(fs::exists(beside));
  });
  EXPECT_EQ(Names().size(), 2U);
}

TEST_F(OfficeFiles, AReplacedFileKeepsItsRightsAndALinkItsTarget) {
  Keep("real.xls", "old");
  fs::permissions(In("real.xls"), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  fs::create_symlink("real.xls", In("link.xls"));
  WriteWorkbook(OneCell(), In("link.xls"));
  EXPECT_TRUE(fs::is_symlink(In("link.xls")));
  EXPECT_EQ(Read(In("real.xls")).substr(0, 4), kCompoundFile);
  EXPECT_EQ(fs::status(In("real.xls")).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST(RichTexts, AreEscaped) {
  const std::string head = "\\pard\\plain\\ql\\f0\\fs24\\b0\n";
  const std::pair<const char*, const char*> cases[] = {
      {"a{b}\\c", "a\\{b\\}\\\\c}\n"},
      {"one\r\n\r\ntwo\r\n", "one\\par\n\\par\ntwo\\par\n}\n"},
      {"a   b", "a \\u32? b}\n"},
      {"\xC3\xA9\xE0\xA4\x86\xF0\x9F\x91\x93", "\\u233?\\u2310?\\u-10179?\\u-9133?}\n"},
      {"a\tb", "a\\tab b}\n"},
  };
  for (const auto& [text, expected] : cases) {
    const std::string rich = RichText({12, false, text});
    EXPECT_EQ(rich.substr(rich.find("\\pard")), head + expected);
  }
  EXPECT_NE(RichText({20, true, "x"}).find("\\fs40\\b\n"), std::string::npos);
}

TEST(ProgramPaths, TheDriveIsTheDocumentsFolder) {
  const std::pair<const char*, const char*> cases[] = {
      {"C:\\Enroll.xls", "/docs/Enroll.xls"},
      {"c:\\worddata.doc", "/docs/worddata.doc"},
      {"D:\\May\\List.xls", "/docs/May/List.xls"},
      {"C:List.xls", "/docs/List.xls"},
      {"C:/List.xls", "/docs/List.xls"},
      {"/home/asha/list.xls", "/home/asha/list.xls"},
      {"list", "/docs/list"},
      {"may/list.xlsx", "/docs/may/list.xlsx"},
      {"", ""},
  };
  for (const auto& [text, file] : cases) EXPECT_EQ(ProgramPath(text, "/docs"), fs::path(file)) << text;
}

}  // namespace
}  // namespace ovindra::office
