#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>

namespace {

using bytes_t = std::string;
using noise_ptr = boost::shared_ptr<directional_result_noise_t>;

struct file_closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using file_ptr = std::unique_ptr<std::FILE, file_closer>;

file_ptr file_holding(bytes_t const& bytes) {
    file_ptr file(std::tmpfile());
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
    std::rewind(file.get());
    return file;
}

// Everything written to a file so far (records here stay well below 4 kB).
bytes_t contents(std::FILE* file) {
    std::rewind(file);
    bytes_t bytes(4096, '\0');
    bytes.resize(std::fread(&bytes[0], 1, bytes.size(), file));
    return bytes;
}

template <class Value>
void append(bytes_t& bytes, Value value) {
    bytes.append(reinterpret_cast<char const*>(&value), sizeof value);
}

void append(bytes_t& bytes, boost::shared_ptr<spectrum_t> const& spectrum) {
    for (double value : spectrum->values) {
        append(bytes, value);
    }
}

// The record as the file format describes it, written out item by item, independently of the
// library's own table.
bytes_t expected_record(directional_result_noise_t const& r, std::int32_t flags) {
    bytes_t bytes;
    append(bytes, flags);
    for (double value :
         {r.source_weight, r.optional_a_level, r.optional_b_level, r.optional_b_level_2,
          r.optional_b_level_3, r.optional_c_level, r.optional_c_level_2, r.optional_c_level_3,
          r.closing_level_1, r.closing_level_2}) {
        append(bytes, value);
    }
    if (flags & 1) {
        append(bytes, r.first_level_1), append(bytes, r.first_level_2);
        append(bytes, r.first_level_3);
    }
    if (flags & 2) {
        append(bytes, r.second_level_1), append(bytes, r.second_level_2);
        append(bytes, r.second_level_3);
    }
    append(bytes, r.closing_level_3);
    if (flags & 1) {
        append(bytes, r.first_tob);
    }
    append(bytes, r.total_tob);
    if (flags & 1) {
        append(bytes, r.first_native);
    }
    if (flags & 2) {
        append(bytes, r.second_native), append(bytes, r.second_tob);
    }
    int bit = 4;
    for (auto const& optional : {r.optional_a, r.optional_b, r.optional_c}) {
        if (flags & bit) {
            append(bytes, static_cast<std::uint8_t>(optional ? 1 : 0));
            append(bytes, optional ? optional : spectrum_t::create_tob());
        }
        bit *= 2;
    }
    return bytes;
}

struct record_files : ::testing::Test {
    boost::shared_ptr<frequency_range_t> first = frequency_range_t::create_nb(100.0, 300.0, 100.0);
    boost::shared_ptr<frequency_range_t> second = frequency_range_t::create_dt(2);
    environment_t environment;
    boost::shared_ptr<simulation_t> tsour = environment.add_tsour_simulation(
        environment.add_aircraft(), environment.add_tsour_calculation());
    boost::shared_ptr<simulation_t> nlcp = environment.add_nlcp_simulation(
        environment.aircraft[0], environment.add_nlcp_calculation());

    noise_ptr blank() const {
        return boost::make_shared<directional_result_noise_t>(
            result_type_t::create_total_aircraft(), first, second, true);
    }

    // Every stored number distinct, and optional_b absent.
    noise_ptr filled() const {
        noise_ptr record = blank();
        double next = 1.0;
        for (double* value :
             {&record->source_weight, &record->first_level_1, &record->first_level_2,
              &record->first_level_3, &record->second_level_1, &record->second_level_2,
              &record->second_level_3, &record->optional_a_level, &record->optional_b_level,
              &record->optional_b_level_2, &record->optional_b_level_3, &record->optional_c_level,
              &record->optional_c_level_2, &record->optional_c_level_3, &record->closing_level_1,
              &record->closing_level_2, &record->closing_level_3}) {
            *value = next++;
        }
        for (auto const& spectrum :
             {record->first_native, record->first_tob, record->second_native, record->second_tob,
              record->total_tob, record->optional_a, record->optional_c}) {
            for (double& value : spectrum->values) {
                value = next++;
            }
        }
        record->optional_b.reset();
        return record;
    }

    // The record's bytes, the same through a file and through a stream.
    bytes_t written(directional_result_noise_t const& record,
                    boost::shared_ptr<simulation_t> const& simulation) const {
        file_ptr file(std::tmpfile());
        record.write(file.get(), simulation);
        std::ostringstream stream(std::ios::binary);
        record.write(stream, simulation);
        EXPECT_EQ(stream.str(), contents(file.get()));
        return stream.str();
    }
};

} // namespace

TEST_F(record_files, FlagWordFollowsTheSimulationAndFixesTheItems) {
    noise_ptr const record = filled();
    EXPECT_EQ(written(*record, nlcp), expected_record(*record, 28));
    tsour->direction_count = 99;
    EXPECT_EQ(written(*record, tsour), expected_record(*record, 31));
    tsour->direction_count = 100;
    bytes_t const minimal = written(*record, tsour);
    EXPECT_EQ(minimal, expected_record(*record, 0));
    EXPECT_EQ(minimal.size(), 4u + 8u * 11u + 8u * 24u);
}

TEST_F(record_files, RoundTripRestoresEveryStoredField) {
    noise_ptr const original = filled();
    noise_ptr const restored = blank();
    restored->optional_b->fill_with(7.0);
    restored->optional_c.reset();
    restored->spare_value = 3.0;
    file_ptr const file = file_holding(written(*original, tsour));
    restored->read(file.get());

    EXPECT_EQ(restored->optional_b->values[0], 7.0); // absent in the file: left alone
    ASSERT_TRUE(restored->optional_c);               // present in the file: created
    EXPECT_EQ(restored->spare_value, 3.0);
    restored->optional_b.reset();
    EXPECT_EQ(expected_record(*restored, 31), expected_record(*original, 31));
}

TEST_F(record_files, ShortFileKeepsWhatWasRead) {
    bytes_t const full = written(*filled(), tsour);
    file_ptr const file = file_holding(full.substr(0, 4 + 3 * 8 + 5));
    noise_ptr const restored = blank();
    restored->read(file.get());
    EXPECT_EQ(restored->source_weight, 1.0);
    EXPECT_EQ(restored->optional_b_level, 9.0);
    EXPECT_EQ(restored->optional_b_level_2, 0.0);
    EXPECT_TRUE(std::feof(file.get()));
}

TEST(IndicatorFiles, BlockIsTheTwentySevenDoublesInOrder) {
    // The indicator held at each place of the block.
    int const indicator_at_place[] = {10, 11, 13, 14, 19, 20, 26, 27, 28, 29, 30, 31, 32, 33,
                                      34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46};
    bytes_t block;
    for (int place = 0; place < 27; ++place) {
        append(block, 100.0 + place);
    }
    auto const record =
        boost::make_shared<integrated_noise_indicators_t>(result_type_t::create_total_aircraft());
    record->exposure.avg_epnl = 5.0;
    std::istringstream input(block, std::ios::binary);
    input >> record;
    for (int place = 0; place < 27; ++place) {
        EXPECT_EQ(record->get(static_cast<indicator_type_t>(indicator_at_place[place])),
                  100.0 + place);
    }
    EXPECT_EQ(record->exposure.avg_epnl, 5.0);

    file_ptr const file(std::tmpfile());
    record->write(file.get());
    EXPECT_EQ(contents(file.get()), block);
    std::ostringstream output(std::ios::binary);
    output << record;
    EXPECT_EQ(output.str(), block);
    std::rewind(file.get());
    EXPECT_TRUE(record->read(file.get()));
    EXPECT_FALSE(record->read(file_holding(block.substr(1)).get()));
}

TEST(SpectrumFiles, BlocksAreTheLevelsAlone) {
    auto const spectrum = boost::make_shared<spectrum_t>(frequency_range_t::create_nb(1, 2, 1));
    spectrum->values = {40.0, 50.0};
    bytes_t expected;
    append(expected, spectrum);
    file_ptr const file(std::tmpfile());
    EXPECT_TRUE(spectrum->write(file.get()));
    EXPECT_EQ(contents(file.get()), expected);

    // The grid, not the values held, says how much to read; the tones stay as they are.
    spectrum->values.clear();
    spectrum->tones.push_back(tone_id_t::create_eo(1, 1, 2.0, 50.0));
    std::rewind(file.get());
    EXPECT_TRUE(spectrum->read(file.get()));
    EXPECT_EQ(spectrum->values, (std::vector<double>{40.0, 50.0}));
    EXPECT_EQ(spectrum->tones.size(), 1u);

    // Nothing to read on an empty grid, nothing to write from an empty spectrum, and nothing
    // read into a null spectrum.
    std::rewind(file.get());
    EXPECT_FALSE(boost::make_shared<spectrum_t>(frequency_range_t::create_dt(0))->read(file.get()));
    EXPECT_EQ(std::ftell(file.get()), 0);
    EXPECT_FALSE(spectrum_t().write(file.get()));
    std::istringstream input(expected, std::ios::binary);
    input >> boost::shared_ptr<spectrum_t>();
    EXPECT_EQ(input.tellg(), 0);
}
