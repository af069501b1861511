#include "execution/message_printer.h"

#include <gtest/gtest.h>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace vtlcmd::runner {
namespace {

/// Notes each write to a stream.
class WriteLog : public std::streambuf {
 public:
  WriteLog(std::string name, std::vector<std::string>& writes)
      : name_(std::move(name)), writes_(writes) {}

 private:
  std::streamsize xsputn(const char* text, std::streamsize size) override {
    writes_.push_back(name_ + ": " + std::string(text, static_cast<std::size_t>(size)));
    return size;
  }
  int sync() override {
    writes_.push_back(name_ + " flushed");
    return 0;
  }

  std::string name_;
  std::vector<std::string>& writes_;
};

class MessagePrinterTest : public testing::Test {
 protected:
  std::vector<std::string> writes_;
  WriteLog reportLog_{"report", writes_};
  WriteLog problemLog_{"problems", writes_};
  std::ostream report_{&reportLog_};
  std::ostream problems_{&problemLog_};
  VtlCmdLogger logger_{10};
  Progress progress_{problems_, ProgressForm::none, 1};
  MessagePrinter printer_{logger_, 4, {{report_}, {problems_}}, progress_};
};

TEST_F(MessagePrinterTest, NeighbouringLinesOfOneSinkGoOutInOneWrite) {
  logger_.addMessage(vtlcmdSource, levelProgress, "one");
  logger_.addMessage(vtlcmdSource, levelProgress, "two");
  printer_.printNew();
  EXPECT_EQ(writes_,
            (std::vector<std::string>{"report: [vtlcmd]            one\n[vtlcmd]            two\n",
                                      "report flushed"}));
}

TEST_F(MessagePrinterTest, TheOrderOfTheSinksIsKept) {
  logger_.addMessage(vtlcmdSource, levelProgress, "one");
  logger_.addMessage(vtlcmdSource, levelError, "two");
  logger_.addMessage(vtlcmdSource, levelProgress, "three");
  printer_.printNew();
  EXPECT_EQ(writes_,
            (std::vector<std::string>{"report: [vtlcmd]            one\n", "report flushed",
                                      "problems: [vtlcmd]  Error:    two\n", "problems flushed",
                                      "report: [vtlcmd]            three\n", "report flushed"}));
}

TEST_F(MessagePrinterTest, EveryLineIsBehindThePrefixOfItsSideAndLevel) {
  MessagePrinter printer(logger_, levelDebug, {{report_}, {problems_}}, progress_);
  std::vector<std::string> expected;
  for (const LogSource source : {vtlcmdSource, vantrelSource, LogSource{7}}) {
    for (LogLevel level = levelCritical; level <= levelDebug; ++level) {
      const std::string sink = level <= levelWarning ? "problems" : "report";
      logger_.addMessage(source, level, "text");
      printer.printNew();
      expected.push_back(sink + ": " + VtlCmdLogger::makeMessagePrefix(source, level) + "text\n");
      expected.push_back(sink + " flushed");
    }
  }
  EXPECT_EQ(writes_, expected);
}

TEST_F(MessagePrinterTest, NothingIsPrintedTwice) {
  logger_.addMessage(vtlcmdSource, levelProgress, "one");
  printer_.printNew();
  printer_.printNew();
  EXPECT_EQ(writes_.size(), 2U);
}

}  // namespace
}  // namespace vtlcmd::runner
