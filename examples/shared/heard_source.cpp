// One source of the aircraft at the microphone: its spectrum towards the ray, a fan's tones taken
// out of its broadband floor and moved by the Doppler shift, both carried along the ray.
#include "aircraft_sound.hpp"

namespace {

// A fan: narrowband at the source, converted to third-octave bands with its tones separated and
// moved by the Doppler shift; the broadband floor and the tones are carried to the microphone
// apart and then added into the whole fan, which keeps the tone list.
heard_source_t hear_fan_source(source_type_t type, propagation_path_t const& path,
                               engine_power_t const& power,
                               boost::shared_ptr<frequency_range_t> fan_grid) {
    heard_source_t source;
    source.narrowband = illustrative_fan_source(type, path.emission_angle, power, fan_grid);
    heard_fan_t const heard =
        hear_fan(source.narrowband, power.blade_passing_frequency(), path.doppler_ratio);
    source.fan_tone_received = heard.fundamental_received;
    apply_path(path, heard.broadband);
    apply_path(path, heard.tones);
    source.broadband = heard.broadband;
    source.tones = heard.tones;
    source.whole = spectrum_t::create_tob();
    spectrum_t::log_add(heard.broadband, heard.tones, source.whole);
    source.whole->tones = heard.tones->tones;
    return source;
}

} // namespace

heard_source_t hear_source(source_type_t type, propagation_path_t const& path,
                           engine_power_t const& power,
                           boost::shared_ptr<frequency_range_t> fan_grid) {
    if (is_fan(type)) {
        return hear_fan_source(type, path, power, fan_grid);
    }
    heard_source_t source;
    source.whole = illustrative_broadband_source(type, path.emission_angle, power);
    apply_path(path, source.whole);
    return source;
}
