// The directional noise record of result files. A flag word says which groups follow; the
// items then come in the order of one table, which the two writers and the reader all walk,
// so the layout is written down once. Numbers are stored as they lie in memory.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include <array>
#include <cstdint>
#include <ostream>

namespace {

using record_t = directional_result_noise_t;
using level_field = double record_t::*;
using spectrum_field = boost::shared_ptr<spectrum_t> record_t::*;

// Bits of the flag word: the groups and optional spectra that a record holds.
constexpr std::int32_t always = 0;
constexpr std::int32_t first_group = 1;
constexpr std::int32_t second_group = 2;
constexpr std::int32_t optional_a_present = 4;
constexpr std::int32_t optional_b_present = 8;
constexpr std::int32_t optional_c_present = 16;

constexpr std::int32_t optional_groups =
    optional_a_present | optional_b_present | optional_c_present;
constexpr std::int32_t all_groups = first_group | second_group | optional_groups;

// From this many directions on, a record keeps only its unconditional items, to keep the files
// of fine directivity sweeps small.
constexpr std::int32_t many_directions = 100;

enum class item_kind {
    levels,         // one to three levels, as one element
    spectrum,       // a spectrum block
    marked_spectrum // a presence mark, then a third-octave block whether present or not
};

struct record_item {
    std::int32_t presence; // the flag bit that brings the item, or always
    item_kind kind;
    std::array<level_field, 3> levels;
    std::size_t level_count;
    spectrum_field spectrum;
};

constexpr record_item levels(std::int32_t presence, level_field a) {
    return {presence, item_kind::levels, {a, nullptr, nullptr}, 1, nullptr};
}

constexpr record_item levels(std::int32_t presence, level_field a, level_field b, level_field c) {
    return {presence, item_kind::levels, {a, b, c}, 3, nullptr};
}

constexpr record_item block(std::int32_t presence, spectrum_field spectrum) {
    return {presence, item_kind::spectrum, {}, 0, spectrum};
}

constexpr record_item marked_block(std::int32_t presence, spectrum_field spectrum) {
    return {presence, item_kind::marked_spectrum, {}, 0, spectrum};
}

// The items after the flag word, in file order. The optional levels come before the first and
// second groups, and the third closing level stands apart from the other two.
constexpr std::array<record_item, 21> record_layout = {{
    levels(always, &record_t::source_weight),
    levels(always, &record_t::optional_a_level),
    levels(always, &record_t::optional_b_level),
    levels(always, &record_t::optional_b_level_2),
    levels(always, &record_t::optional_b_level_3),
    levels(always, &record_t::optional_c_level),
    levels(always, &record_t::optional_c_level_2),
    levels(always, &record_t::optional_c_level_3),
    levels(always, &record_t::closing_level_1),
    levels(always, &record_t::closing_level_2),
    levels(first_group, &record_t::first_level_1, &record_t::first_level_2,
           &record_t::first_level_3),
    levels(second_group, &record_t::second_level_1, &record_t::second_level_2,
           &record_t::second_level_3),
    levels(always, &record_t::closing_level_3),
    block(first_group, &record_t::first_tob),
    block(always, &record_t::total_tob),
    block(first_group, &record_t::first_native),
    block(second_group, &record_t::second_native),
    block(second_group, &record_t::second_tob),
    marked_block(optional_a_present, &record_t::optional_a),
    marked_block(optional_b_present, &record_t::optional_b),
    marked_block(optional_c_present, &record_t::optional_c),
}};

bool is_present(record_item const& item, std::int32_t flags) {
    return item.presence == always || (flags & item.presence) != 0;
}

// The writer takes the flags from the simulation, not from the record.
std::int32_t flags_for(simulation_t const& simulation) {
    if (simulation.direction_count >= many_directions) {
        return always;
    }
    return simulation.tsour ? all_groups : optional_groups;
}

// Writing to a file: each item is one element, and a failed write ends the record.
struct file_sink {
    std::FILE* file;

    bool put(void const* bytes, std::size_t size) { return std::fwrite(bytes, size, 1, file) == 1; }
    bool put_spectrum(boost::shared_ptr<spectrum_t> const& spectrum) {
        return spectrum->write(file);
    }
};

// Writing to a stream: the same bytes, with no test between items.
struct stream_sink {
    std::ostream& stream;

    bool put(void const* bytes, std::size_t size) {
        stream.write(static_cast<char const*>(bytes), static_cast<std::streamsize>(size));
        return true;
    }
    bool put_spectrum(boost::shared_ptr<spectrum_t> const& spectrum) {
        stream << spectrum;
        return true;
    }
};

template <class Sink>
bool write_item(record_t const& record, record_item const& item, Sink& sink) {
    switch (item.kind) {
    case item_kind::levels: {
        std::array<double, 3> values{};
        for (std::size_t i = 0; i < item.level_count; ++i) {
            values[i] = record.*item.levels[i];
        }
        return sink.put(values.data(), item.level_count * sizeof(double));
    }
    case item_kind::spectrum:
        return sink.put_spectrum(record.*item.spectrum);
    case item_kind::marked_spectrum: {
        // An absent spectrum still takes the room of a silent one, so that the length of a
        // record depends on its flag word alone.
        boost::shared_ptr<spectrum_t> const& spectrum = record.*item.spectrum;
        unsigned char const mark = spectrum ? 1 : 0;
        return sink.put(&mark, sizeof mark) &&
               sink.put_spectrum(spectrum ? spectrum : spectrum_t::create_tob());
    }
    }
    return false;
}

template <class Sink>
void write_record(record_t const& record, std::int32_t flags, Sink&& sink) {
    if (!sink.put(&flags, sizeof flags)) {
        return;
    }
    for (record_item const& item : record_layout) {
        if (is_present(item, flags) && !write_item(record, item, sink)) {
            return;
        }
    }
}

bool get(std::FILE* file, void* bytes, std::size_t size) {
    return std::fread(bytes, size, 1, file) == 1;
}

// Reads one item in place; a short read leaves the item's fields as they were, except for the
// levels of a spectrum block, which are read straight into the spectrum.
bool read_item(record_t& record, record_item const& item, std::FILE* file) {
    switch (item.kind) {
    case item_kind::levels: {
        std::array<double, 3> values{};
        if (!get(file, values.data(), item.level_count * sizeof(double))) {
            return false;
        }
        for (std::size_t i = 0; i < item.level_count; ++i) {
            record.*item.levels[i] = values[i];
        }
        return true;
    }
    case item_kind::spectrum:
        return (record.*item.spectrum)->read(file);
    case item_kind::marked_spectrum: {
        unsigned char mark = 0;
        if (!get(file, &mark, sizeof mark)) {
            return false;
        }
        if (mark == 0) {
            // The writer had no spectrum: the block is skipped and the field left alone.
            return spectrum_t::create_tob()->read(file);
        }
        spectrum_t::reserve_tob(&(record.*item.spectrum));
        return (record.*item.spectrum)->read(file);
    }
    }
    return false;
}

} // namespace

void directional_result_noise_t::write(std::FILE* file,
                                       boost::shared_ptr<simulation_t> simulation) const {
    write_record(*this, flags_for(*simulation), file_sink{file});
}

void directional_result_noise_t::write(std::ostream& stream,
                                       boost::shared_ptr<simulation_t> simulation) const {
    write_record(*this, flags_for(*simulation), stream_sink{stream});
}

void directional_result_noise_t::read(std::FILE* file) {
    std::int32_t flags = 0;
    if (!get(file, &flags, sizeof flags)) {
        return;
    }
    // The file's own flags decide; bits above the optional spectra mean nothing here.
    for (record_item const& item : record_layout) {
        if (is_present(item, flags) && !read_item(*this, item, file)) {
            return;
        }
    }
}
