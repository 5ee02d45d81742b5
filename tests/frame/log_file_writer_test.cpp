#include <calc-common/LogFileWriter>

#include "frame/log_rotation.hpp"

#include <boost/filesystem.hpp>
#include <boost/log/core/core.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <limits>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace fs = boost::filesystem;
using VARNO::LogFileWriter;

namespace {

class LogFileWriterTest : public ::testing::Test {
protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / fs::unique_path("varno-log-%%%%-%%%%-%%%%");
        LogFileWriter::resetCounters();
    }
    void TearDown() override {
        boost::log::core::get()->remove_all_sinks();
        LogFileWriter::enableLogging(true);
        fs::remove_all(dir);
    }

    // The file names in `folder`, sorted.
    std::vector<std::string> files_in(fs::path const& folder) const {
        std::vector<std::string> names;
        if (fs::exists(folder)) {
            for (auto const& entry : fs::directory_iterator(folder)) {
                names.push_back(entry.path().filename().string());
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    // Every line of every log file in `folder`, file after file.
    std::vector<std::string> lines_in(fs::path const& folder) const {
        std::vector<std::string> lines;
        for (auto const& name : files_in(folder)) {
            std::ifstream file((folder / name).string());
            for (std::string line; std::getline(file, line);) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    fs::path dir;
};

// The message after the time stamp, or the whole line when it has no time stamp of the log's form.
std::string without_time_stamp(std::string const& line) {
    static std::regex const stamped(R"(\d{4}-\d{2}-\d{2} \d{2}:\d{2}( :  <.*))");
    std::smatch match;
    return std::regex_match(line, match, stamped) ? match[1].str() : line;
}

std::vector<std::string> messages_in(std::vector<std::string> const& lines) {
    std::vector<std::string> messages;
    std::transform(lines.begin(), lines.end(), std::back_inserter(messages), without_time_stamp);
    return messages;
}

} // namespace

TEST_F(LogFileWriterTest, WritesStampedLinesAtOrAboveTheThresholdAndCountsEveryRecord) {
    LogFileWriter::init(true, LogFileWriter::warning, dir.string(), 10.0);
    LogFileWriter::AddToLogFile(LogFileWriter::notification, "too light");
    LogFileWriter::AddToLogFile(LogFileWriter::warning, "the message");
    LogFileWriter::AddToLogFile(LogFileWriter::error, "worse");
    LogFileWriter::AddToLogFile(static_cast<LogFileWriter::SeverityLevel>(7), "a level of its own");

    std::vector<std::string> const names = files_in(dir);
    ASSERT_EQ(names.size(), 1u);
    EXPECT_TRUE(std::regex_match(names[0], std::regex(R"(logFile_\d{4}-\d{2}-\d{2}_0\.log)")))
        << names[0];
    EXPECT_EQ(messages_in(lines_in(dir)),
              (std::vector<std::string>{" :  <warning>  the message", " :  <error>  worse",
                                        " :  <7>  a level of its own"}));

    EXPECT_EQ(LogFileWriter::getNumberOfRecords(LogFileWriter::notification), 1u);
    EXPECT_EQ(LogFileWriter::getNumberOfRecords(LogFileWriter::warning), 1u);
    EXPECT_EQ(LogFileWriter::getNumberOfRecords(static_cast<LogFileWriter::SeverityLevel>(7)), 1u);
    EXPECT_EQ(LogFileWriter::getNumberOfRecords(LogFileWriter::debug), 0u);
}

TEST_F(LogFileWriterTest, DisabledLoggingWritesNothingButStillCounts) {
    LogFileWriter::init(false, LogFileWriter::debug, dir.string(), 10.0);
    LogFileWriter::AddToLogFile(LogFileWriter::error, "while off");
    EXPECT_TRUE(lines_in(dir).empty());

    LogFileWriter::enableLogging(true);
    LogFileWriter::AddToLogFile(LogFileWriter::error, "back on");
    EXPECT_EQ(messages_in(lines_in(dir)), std::vector<std::string>{" :  <error>  back on"});
    EXPECT_EQ(LogFileWriter::getNumberOfRecords(LogFileWriter::error), 2u);
}

TEST_F(LogFileWriterTest, ASecondInitWritesToANewSinkAndKeepsCountersAndMessages) {
    fs::path const first = dir / "first";
    fs::path const second = dir / "second";
    LogFileWriter::init(true, LogFileWriter::debug, first.string(), 10.0);
    LogFileWriter::AddToLogFile(LogFileWriter::trace, "to the first");
    LogFileWriter::saveMsg("kept");
    LogFileWriter::init(true, LogFileWriter::debug, second.string(), 10.0);
    LogFileWriter::AddToLogFile(LogFileWriter::trace, "to the second");

    EXPECT_EQ(messages_in(lines_in(first)), std::vector<std::string>{" :  <trace>  to the first"});
    EXPECT_EQ(messages_in(lines_in(second)),
              std::vector<std::string>{" :  <trace>  to the second"});
    EXPECT_EQ(LogFileWriter::getNumberOfRecords(LogFileWriter::trace), 2u);
    EXPECT_EQ(LogFileWriter::getWarningMsg(), std::set<std::string>{"kept"});
}

TEST_F(LogFileWriterTest, KeptMessagesAreUniqueAndGoWithTheCountersOnReset) {
    LogFileWriter::saveMsg("b");
    LogFileWriter::saveMsg("a");
    LogFileWriter::saveMsg("b");
    LogFileWriter::enableLogging(false);
    LogFileWriter::AddToLogFile(LogFileWriter::debug, "counted");
    EXPECT_EQ(LogFileWriter::getWarningMsg(), (std::set<std::string>{"a", "b"}));
    EXPECT_EQ(LogFileWriter::getNumberOfRecords(LogFileWriter::debug), 1u);

    LogFileWriter::resetCounters();
    EXPECT_TRUE(LogFileWriter::getWarningMsg().empty());
    EXPECT_EQ(LogFileWriter::getNumberOfRecords(LogFileWriter::debug), 0u);
}

TEST_F(LogFileWriterTest, ASizeBelowOneMebibyteRotatesBeforeEveryRecordAfterTheFirst) {
    LogFileWriter::init(true, LogFileWriter::debug, dir.string(), 0.5);
    LogFileWriter::AddToLogFile(LogFileWriter::debug, "one");
    LogFileWriter::AddToLogFile(LogFileWriter::debug, "two");
    EXPECT_EQ(files_in(dir).size(), 2u);
}

TEST_F(LogFileWriterTest, ADirectoryThatCannotBeCreatedRaisesTheFilesystemError) {
    fs::create_directories(dir);
    std::ofstream((dir / "a-file").string()) << "in the way";
    EXPECT_THROW(
        LogFileWriter::init(true, LogFileWriter::debug, (dir / "a-file" / "logs").string(), 10.0),
        fs::filesystem_error);
}

TEST(LogRotationSize, CountsWholeMebibytesIn32BitArithmetic) {
    struct row {
        double mib;
        std::int32_t bytes;
    };
    for (row const r :
         {row{0.5, 0}, row{1.0, 1 << 20}, row{10.9, 10 << 20}, row{2047.0, 2047 << 20},
          row{2048.0, std::numeric_limits<std::int32_t>::min()}}) {
        EXPECT_EQ(VARNO::detail::log_rotation_size_bytes(r.mib), r.bytes) << r.mib;
    }
}

TEST(SeverityLevel, TextsAndNumbersOutsideTheFive) {
    std::ostringstream text;
    for (int value : {0, 1, 2, 3, 4, 7, -1}) {
        text << static_cast<LogFileWriter::SeverityLevel>(value) << ' ';
    }
    EXPECT_EQ(text.str(), "debug trace notification warning error 7 -1 ");
}
