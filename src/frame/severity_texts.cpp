// The texts of the log severities, as they stand between the angle brackets of a log line.

#include <calc-common/LogFileWriter>

#include <ostream>

namespace VARNO {

namespace {

char const* severity_text(LogFileWriter::SeverityLevel severity) {
    switch (severity) {
    case LogFileWriter::debug:
        return "debug";
    case LogFileWriter::trace:
        return "trace";
    case LogFileWriter::notification:
        return "notification";
    case LogFileWriter::warning:
        return "warning";
    case LogFileWriter::error:
        return "error";
    }
    return nullptr;
}

} // namespace

std::ostream& operator<<(std::ostream& stream, LogFileWriter::SeverityLevel severity) {
    char const* text = severity_text(severity);
    // Callers may log at levels of their own beyond the five; the line still says which.
    if (text == nullptr) {
        return stream << static_cast<int>(severity);
    }
    return stream << text;
}

} // namespace VARNO
