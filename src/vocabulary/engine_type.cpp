// Description of an engine from its word of type flags.

#include <calc-common/vocabulary.hpp>

namespace VARNO {

namespace {

constexpr int fuselage_mounted_flag = 1;
constexpr int turbofan_flag = 2;
constexpr int turboprop_flag = 4;
constexpr int propfan_flag = 8;
constexpr int pseudo_breakdown_flag = 16;

bool has_flag(int word, int flag) {
    return (word & flag) != 0;
}

// The engine kind is the first kind flag set, in this order, so a word that sets several reads
// as the first; nullptr when no kind flag is set.
char const* engine_kind(int engine_type) {
    if (has_flag(engine_type, turbofan_flag)) {
        return "Turbofan";
    }
    if (has_flag(engine_type, turboprop_flag)) {
        return "Turboprop";
    }
    if (has_flag(engine_type, propfan_flag)) {
        return "Propfan (CROR)";
    }
    return nullptr;
}

} // namespace

std::string EngineTypeToString(int engine_type) {
    char const* kind = engine_kind(engine_type);
    if (kind == nullptr) {
        // Without a kind the mounting and breakdown flags describe nothing.
        return "Unknown";
    }
    std::string text = kind;
    text += has_flag(engine_type, fuselage_mounted_flag) ? ": fuselage-mounted" : ": wing-mounted";
    if (has_flag(engine_type, pseudo_breakdown_flag)) {
        text += " (PSEUDO-breakdown)";
    }
    return text;
}

} // namespace VARNO
