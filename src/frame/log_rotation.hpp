#ifndef VARNO_SRC_FRAME_LOG_ROTATION_HPP
#define VARNO_SRC_FRAME_LOG_ROTATION_HPP

#include <cstdint>

namespace VARNO::detail {

// Size in bytes at which the log file is rotated, from a size in MiB. The log has always counted
// in whole MiB with 32-bit arithmetic: the size is truncated, so anything below 1.0 gives 0
// (rotation before every record after the first), and from 2048 MiB on the shift wraps. Callers
// rely on these sizes, so they are kept rather than guarded.
inline std::int32_t log_rotation_size_bytes(double rotation_size_mb) {
    auto const whole_mib = static_cast<std::int32_t>(rotation_size_mb);
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(whole_mib) << 20);
}

} // namespace VARNO::detail

#endif // VARNO_SRC_FRAME_LOG_ROTATION_HPP
