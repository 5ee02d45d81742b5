#include <calc-common/LogFileWriter>

#include "frame/log_rotation.hpp"

#include <boost/filesystem.hpp>
#include <boost/log/core/core.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <limits>
#include <sstream>

namespace fs = boost::filesystem;
using Log = VARNO::LogFileWriter;
using lines_t = std::vector<std::string>;

// Whether `text` has the shape of `mask`, in which '#' stands for any digit.
bool has_shape(std::string const& text, std::string const& mask) {
    return text.size() == mask.size() &&
           std::equal(mask.begin(), mask.end(), text.begin(), [](char m, char c) {
               return m == '#' ? std::isdigit(static_cast<unsigned char>(c)) != 0 : m == c;
           });
}

class LogFileWriterTest : public ::testing::Test {
protected:
    void SetUp() override { Log::resetCounters(); }
    void TearDown() override {
        boost::log::core::get()->remove_all_sinks();
        fs::remove_all(dir);
    }

    // The log files in `folder` by name, each given as its lines with the time stamp cut off.
    static std::map<std::string, lines_t> files_in(fs::path const& folder) {
        std::map<std::string, lines_t> files;
        for (auto const& entry : fs::directory_iterator(folder)) {
            lines_t& lines = files[entry.path().filename().string()];
            std::ifstream file(entry.path().string());
            for (std::string line; std::getline(file, line);) {
                bool const stamped = has_shape(line.substr(0, 16), "####-##-## ##:##");
                lines.push_back(stamped ? line.substr(16) : line);
            }
        }
        return files;
    }

    // The lines of the one log file in `folder`, or how many files there are instead.
    static lines_t lines_of_only_file(fs::path const& folder) {
        auto const files = files_in(folder);
        return files.size() == 1 ? files.begin()->second
                                 : lines_t{std::to_string(files.size()) + " files"};
    }

    fs::path const dir = fs::temp_directory_path() / fs::unique_path("varno-log-%%%%-%%%%-%%%%");
};

TEST_F(LogFileWriterTest, WritesStampedLinesAtOrAboveTheThresholdAndCountsEveryRecord) {
    Log::init(true, Log::warning, dir.string(), 10.0);
    Log::AddToLogFile(Log::notification, "too light");
    Log::AddToLogFile(Log::warning, "the message");
    Log::AddToLogFile(static_cast<Log::SeverityLevel>(7), "a level of its own");

    auto const files = files_in(dir);
    ASSERT_EQ(files.size(), 1u);
    EXPECT_TRUE(has_shape(files.begin()->first, "logFile_####-##-##_0.log"));
    EXPECT_EQ(files.begin()->second,
              (lines_t{" :  <warning>  the message", " :  <7>  a level of its own"}));
    EXPECT_EQ(Log::getNumberOfRecords(Log::notification), 1u);
    EXPECT_EQ(Log::getNumberOfRecords(Log::warning), 1u);
    EXPECT_EQ(Log::getNumberOfRecords(Log::debug), 0u);
}

TEST_F(LogFileWriterTest, DisabledLoggingCountsAndASecondInitKeepsCountsAndMessages) {
    Log::init(false, Log::debug, (dir / "first").string(), 10.0);
    Log::AddToLogFile(Log::trace, "while off");
    Log::enableLogging(true);
    Log::AddToLogFile(Log::trace, "to the first");
    Log::saveMsg("b");
    Log::saveMsg("a");
    Log::saveMsg("b");
    Log::init(true, Log::debug, (dir / "second").string(), 10.0);
    Log::AddToLogFile(Log::trace, "to the second");

    EXPECT_EQ(lines_of_only_file(dir / "first"), lines_t{" :  <trace>  to the first"});
    EXPECT_EQ(lines_of_only_file(dir / "second"), lines_t{" :  <trace>  to the second"});
    EXPECT_EQ(Log::getNumberOfRecords(Log::trace), 3u);
    EXPECT_EQ(Log::getWarningMsg(), (std::set<std::string>{"a", "b"}));
    Log::resetCounters();
    EXPECT_EQ(Log::getNumberOfRecords(Log::trace), 0u);
    EXPECT_TRUE(Log::getWarningMsg().empty());
}

TEST_F(LogFileWriterTest, ASizeBelowOneMebibyteRotatesBeforeEveryRecordAfterTheFirst) {
    Log::init(true, Log::debug, dir.string(), 0.5);
    Log::AddToLogFile(Log::debug, "one");
    Log::AddToLogFile(Log::debug, "two");
    EXPECT_EQ(files_in(dir).size(), 2u);
}

TEST_F(LogFileWriterTest, AnEmptyDirectoryMeansTheWorkingDirectoryAndABlockedOneRaises) {
    fs::create_directories(dir / "work");
    std::ofstream((dir / "a-file").string()) << "in the way";
    EXPECT_THROW(Log::init(true, Log::debug, (dir / "a-file" / "logs").string(), 10.0),
                 fs::filesystem_error);
    fs::path const working = fs::current_path();
    fs::current_path(dir / "work");
    Log::init(true, Log::debug, "", 10.0);
    Log::AddToLogFile(Log::debug, "here");
    fs::current_path(working);
    EXPECT_EQ(lines_of_only_file(dir / "work"), lines_t{" :  <debug>  here"});
}

TEST(LogRotationSize, CountsWholeMebibytesIn32BitArithmetic) {
    EXPECT_EQ(VARNO::detail::log_rotation_size_bytes(10.9), 10 << 20);
    EXPECT_EQ(VARNO::detail::log_rotation_size_bytes(2047.0), 2047 << 20);
    EXPECT_EQ(VARNO::detail::log_rotation_size_bytes(2048.0),
              std::numeric_limits<std::int32_t>::min());
}

TEST(SeverityLevel, TextsAndNumbersOutsideTheFive) {
    std::ostringstream text;
    for (int value : {0, 1, 2, 3, 4, 7, -1}) {
        text << static_cast<Log::SeverityLevel>(value) << ' ';
    }
    EXPECT_EQ(text.str(), "debug trace notification warning error 7 -1 ");
}
