// The shared log: a static facade over Boost.Log, with counters of its own that say how many
// records of each severity the calculation libraries offered.

#include <calc-common/LogFileWriter>

#include "frame/log_rotation.hpp"

#include <boost/date_time/posix_time/posix_time_types.hpp>
#include <boost/filesystem/path.hpp>
#include <boost/log/core/core.hpp>
#include <boost/log/expressions.hpp>
#include <boost/log/sources/global_logger_storage.hpp>
#include <boost/log/sources/record_ostream.hpp>
#include <boost/log/sources/severity_logger.hpp>
#include <boost/log/support/date_time.hpp>
#include <boost/log/utility/setup/common_attributes.hpp>
#include <boost/log/utility/setup/file.hpp>

#include <utility>

namespace VARNO {

std::map<LogFileWriter::SeverityLevel, std::size_t> LogFileWriter::_recordCount;
std::set<std::string> LogFileWriter::_warningMsg;

namespace {

namespace expr = boost::log::expressions;
namespace keywords = boost::log::keywords;

// Made by Boost.Log on first use and shared by every thread that logs.
BOOST_LOG_INLINE_GLOBAL_LOGGER_DEFAULT(
    varno_logger, boost::log::sources::severity_logger_mt<LogFileWriter::SeverityLevel>)

// The date fields and the counter %N are expanded by the file sink when it opens a file.
boost::filesystem::path log_file_pattern(std::string const& directory) {
    return boost::filesystem::path(directory) / "logFile_%Y-%m-%d_%N.log";
}

// "2022-11-08 14:10 :  <warning>  the message": minutes are the finest time a reader needs.
auto line_format() {
    return expr::stream << expr::format_date_time<boost::posix_time::ptime>("TimeStamp",
                                                                            "%Y-%m-%d %H:%M")
                        << " :  <" << expr::attr<LogFileWriter::SeverityLevel>("Severity") << ">  "
                        << expr::smessage;
}

} // namespace

void LogFileWriter::init(bool enable, SeverityLevel const& threshold, std::string const& directory,
                         double const& rotation_size_mb) {
    auto const core = boost::log::core::get();
    core->set_logging_enabled(enable);
    core->remove_all_sinks();
    // Without auto-flush: AddToLogFile flushes each record itself.
    boost::log::add_file_log(
        keywords::file_name = log_file_pattern(directory), keywords::target = directory,
        keywords::rotation_size = detail::log_rotation_size_bytes(rotation_size_mb),
        keywords::format = line_format());
    core->reset_filter();
    // A record that carries no severity does not pass.
    core->set_filter(expr::attr<SeverityLevel>("Severity") >= threshold);
    boost::log::add_common_attributes();
}

void LogFileWriter::AddToLogFile(SeverityLevel const& severity, std::string const& message) {
    BOOST_LOG_SEV(varno_logger::get(), severity) << message;
    // Counted whether or not the record was written: the counts say what was offered.
    ++_recordCount[severity];
    // Each record reaches the disk at once, so a log is complete up to a crash.
    boost::log::core::get()->flush();
}

void LogFileWriter::enableLogging(bool enable) {
    boost::log::core::get()->set_logging_enabled(enable);
}

std::size_t LogFileWriter::getNumberOfRecords(SeverityLevel const& severity) {
    auto const found = _recordCount.find(severity);
    return found == _recordCount.end() ? 0 : found->second;
}

void LogFileWriter::resetCounters() {
    _recordCount.clear();
    _warningMsg.clear();
}

void LogFileWriter::saveMsg(std::string message) {
    _warningMsg.insert(std::move(message));
}

std::set<std::string> LogFileWriter::getWarningMsg() {
    return _warningMsg;
}

} // namespace VARNO
