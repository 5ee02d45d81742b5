#!/usr/bin/env python3
"""Writes the handmade seed inputs of the fuzz targets, in the byte encoding of
fuzz/fuzz_input.hpp. Run from anywhere; it rewrites the files it names in
fuzz/corpus/<target>/. Other files there are inputs the fuzzers once found, kept so that the
faults they showed stay fixed."""
import math
import os
import struct

HERE = os.path.dirname(os.path.abspath(__file__))
SPECIAL = {"nan": 4, "inf": 5, "-inf": 6, "max": 7}


def byte(value):
    return bytes([value & 0xFF])


def num(value):
    """One number: sixteenths below 2048, quarters of a unit up to 16384, else raw bytes."""
    if isinstance(value, str):
        return byte(6) + byte(SPECIAL[value])
    if value * 16 == int(value * 16) and -2048 <= value < 2048:
        return byte(0) + struct.pack("<h", int(value * 16))
    if value * 4 == int(value * 4) and 0 <= value < 16384:
        return byte(4) + struct.pack("<H", int(value * 4))
    return byte(7) + struct.pack("<d", value)


def nums(values):
    return b"".join(num(v) for v in values)


def write(target, name, data):
    folder = os.path.join(HERE, target)
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, name + ".bin"), "wb") as f:
        f.write(data)


TOB = [50, 63, 80, 100, 125, 160, 200, 250, 315, 400, 500, 630, 800, 1000, 1250, 1600, 2000,
       2500, 3150, 4000, 5000, 6300, 8000, 10000]
FLOOR = [70 - 0.5 * i for i in range(24)]


def with_tones(levels, bands, height):
    return [level + height if i in bands else level for i, level in enumerate(levels)]


def tob_conversion():
    def narrowband(start, step, count, method, line_count_bytes, columns, levels):
        return (byte(4) + byte(count) + num(start) + num(step) + byte(0) + byte(method + 1)
                + line_count_bytes + byte(1) + byte(columns) + nums(levels))

    lines = 64
    levels = [60 + 10 * math.sin(k / 5) for k in range(lines * 2)]
    levels = [round(v * 16) / 16 for v in levels]
    write("fuzz_tob_conversion", "narrowband_line_band",
          narrowband(40, 160, lines, 0, byte(5) + byte(16), 2, levels))
    write("fuzz_tob_conversion", "narrowband_butterworth",
          narrowband(20, 25, 96, 1, byte(5) + byte(17), 1, [50.0] * 96))
    write("fuzz_tob_conversion", "narrowband_overlap",
          narrowband(10, 100, 96, 2, byte(5) + byte(16), 1, [40 + k / 4 for k in range(96)]))
    write("fuzz_tob_conversion", "filter_bank",
          narrowband(0, 200, 60, 1, byte(2), 1, [55.0] * 60))
    discrete = [100, 1000, 1122, 4466.75, 9000]
    write("fuzz_tob_conversion", "discrete_lines",
          byte(1) + byte(len(discrete)) + nums(discrete) + byte(1) + byte(5) + byte(16)
          + byte(1) + byte(3) + nums([80, 70, 60, 50, 40] * 3))
    write("fuzz_tob_conversion", "discrete_nan_line",
          byte(1) + byte(2) + nums(["nan", 500]) + byte(1) + byte(5) + byte(16) + byte(1)
          + byte(1) + nums([80, 70]))
    write("fuzz_tob_conversion", "input_on_grid", byte(0) + byte(1) + byte(5) + byte(16)
          + byte(1) + byte(1) + nums(FLOOR))


def tones():
    spectrum = with_tones(FLOOR, {8, 13, 18}, 12)
    write("fuzz_tones", "slope", byte(0) + nums(spectrum))
    write("fuzz_tones", "frequency", byte(1) + nums(spectrum) + nums([3, 1.5]))
    # check margin, cut frequency, method, slope step, tone margin
    write("fuzz_tones", "bbtones", byte(2) + nums(spectrum) + nums([3, 200]) + byte(2)
          + nums([3, 1.5]))
    write("fuzz_tones", "bbtones_slope", byte(2) + nums(with_tones(FLOOR, {23}, 5))
          + nums([1, 100]) + byte(1) + nums([3, 1.5]))
    # check margin, cut frequency, fundamental, gap value, method, slope step, tone margin
    write("fuzz_tones", "ensca", byte(3) + nums(with_tones(FLOOR, {10, 13, 15, 16, 17}, 15))
          + nums([3, 200, 315, 0]) + byte(2) + nums([3, 1.5]))
    write("fuzz_tones", "ensca_shared_band", byte(3) + nums(with_tones(FLOOR, {12, 15, 17}, 15))
          + nums([3, 100, 550, 0]) + byte(1) + nums([3, 1.5]))
    # tones, broadband, ratio, frequency, exact, keep, copy
    write("fuzz_tones", "doppler_low_edge", byte(4) + nums(with_tones([0] * 24, {9, 10}, 60))
          + nums(FLOOR) + nums([1.25, 410]) + byte(1) + byte(0) + byte(1))
    write("fuzz_tones", "doppler_high_edge", byte(4) + nums(with_tones([0] * 24, {13}, 60))
          + nums(FLOOR) + nums([0.75, 1100]) + byte(0) + byte(0) + byte(0))
    write("fuzz_tones", "tone_spectrum", byte(5) + num(1100) + byte(15) + num(80))


def interpolation():
    x = [0, 10, 20, 35, 50, 70, 90, 120, 150, 180]
    y = [80, 82, 85, 86, 84, 83, 80, 78, 70, 65]
    queries = [-5, 0, 12.5, 90, 179.9375, 200]
    write("fuzz_interpolation", "parabolic", byte(1) + byte(len(x)) + nums(x) + nums(y)
          + byte(1) + byte(len(queries) - 1) + nums(queries) + byte(1))
    write("fuzz_interpolation", "parabolic_two_points", byte(1) + byte(2) + nums([0, 1])
          + nums([3, 5]) + byte(0) + byte(2) + nums([-1, 0.5, 2]) + byte(1))
    write("fuzz_interpolation", "spline", byte(0) + byte(len(x) - 2) + nums(x) + nums(y)
          + byte(len(queries) - 1) + nums(queries) + byte(1))
    write("fuzz_interpolation", "spline_repeated", byte(0) + byte(2) + nums([0, 1, 1, 2])
          + nums([0, 1, 2, 3]) + byte(1) + nums([0.5, 1]) + byte(1))


def bspline():
    x = [float(i) for i in range(20)]
    y = [round(16 * math.sin(v / 3)) / 16 for v in x]
    tail = byte(3) + nums([-1, 0.5, 7.25, 19]) + byte(2)
    write("fuzz_bspline", "interpolating", byte(len(x) - 1) + nums(x) + byte(1) + nums(y)
          + num(0) + tail)
    write("fuzz_bspline", "smoothing", byte(len(x) - 1) + nums(x) + byte(1) + nums(y)
          + num(0.5) + tail)
    write("fuzz_bspline", "nearly_interpolating", byte(len(x) - 1) + nums(x) + byte(1)
          + nums(y) + num(1e-12) + tail)
    write("fuzz_bspline", "polynomial", byte(len(x) - 1) + nums(x) + byte(1) + nums(y)
          + num(1000) + tail)
    write("fuzz_bspline", "unsorted", byte(5) + nums([0, 2, 1, 3, 5, 4]) + byte(0)
          + nums([1, 2, 3, 4, 5, 6]) + num(0) + tail)


def ground():
    def call(method, ground=(250, 100, 0.3, 300, 0.3, 200), air=(288.15, 101325, 70),
             d1=100, d2=101.5, speed=340.25, angle=10):
        return (byte(method + 1) + nums(ground) + nums(air) + nums([d1, d2, speed, angle]))

    narrowband = byte(2) + byte(39) + nums([10, 250])
    listed = byte(1) + byte(3) + nums([100, 1000, 4000, 8000])
    tob = byte(0)
    for method in range(8):
        write("fuzz_ground_reflection", "ground_%d" % method,
              tob + narrowband + call(method) + call((method + 3) % 8))
    write("fuzz_ground_reflection", "narrowband_then_listed",
          narrowband + listed + call(3) + call(5))
    write("fuzz_ground_reflection", "unknown_ground", listed + tob + call(8) + call(0))
    write("fuzz_ground_reflection", "early_exit", tob + listed + call(7, d1=0.5) + call(2))


def result_readers():
    def doubles(values):
        return b"".join(struct.pack("<d", v) for v in values)

    tob_block = doubles(FLOOR)
    write("fuzz_result_readers", "spectrum", byte(0) + byte(5) + byte(0)
          + doubles([60, 61.5, 0, 70.25, 1e-3]))
    write("fuzz_result_readers", "spectrum_cut_short", byte(0) + byte(5) + byte(0)
          + doubles([60, 61.5])[:13])
    write("fuzz_result_readers", "spectrum_empty_grid", byte(0) + byte(0) + byte(0)
          + doubles([60]))
    indicators = doubles([90 + k / 4 for k in range(27)])
    write("fuzz_result_readers", "indicators", byte(1) + byte(0) + byte(0) + indicators)
    write("fuzz_result_readers", "indicators_cut_short", byte(1) + byte(0) + byte(0)
          + indicators[:215])
    first, second = 4, 2
    levels = doubles([1.0] + [50 + k for k in range(9)])
    groups = doubles([61, 62, 63]) + doubles([71, 72, 73])
    full = (struct.pack("<i", 31) + levels + groups + doubles([80]) + tob_block + tob_block
            + doubles([40] * first) + doubles([41] * first) + tob_block
            + byte(1) + tob_block + byte(0) + tob_block + byte(1) + tob_block)
    header = byte(2) + byte(first) + byte(second)
    write("fuzz_result_readers", "directional_all_parts", header + full)
    write("fuzz_result_readers", "directional_cut_short", header + full[:300])
    write("fuzz_result_readers", "directional_always_items",
          header + struct.pack("<i", 0) + levels + doubles([80]) + tob_block)


def metrics():
    flat = [60] * 24
    tone = [60] * 24
    tone[13] = 75
    ramp = [[40 + 2 * k] * 24 for k in range(5)] + [[50] * 24]
    write("fuzz_metrics", "steady", byte(3) + nums(flat * 3) + num(0.5))
    write("fuzz_metrics", "tone_flyover", byte(4) + nums(flat + tone + tone + flat) + num(0.5))
    write("fuzz_metrics", "rising", byte(6) + nums(sum(ramp, [])) + num(0.25))
    write("fuzz_metrics", "silent_nan", byte(2) + nums([0] * 24 + ["nan"] * 24) + num(1))


if __name__ == "__main__":
    tob_conversion()
    tones()
    interpolation()
    bspline()
    ground()
    result_readers()
    metrics()
