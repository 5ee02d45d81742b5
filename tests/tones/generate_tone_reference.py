#!/usr/bin/python3
"""Independent reference for the tone separation tests.

Written from the description of the procedures, not from the C++ sources: it recomputes the
worked examples on the 24-band third-octave grid and writes tone_reference.inc, a C++ include of
arrays. Run it with /usr/bin/python3 from this folder; CI uses the committed output.
"""
import math

EPS = 2.220446049250313e-16
N = 24


def t_gt(a, b):
    return a - abs(a) * EPS > b + abs(b) * EPS


def t_lt(a, b):
    return a + abs(a) * EPS < b - abs(b) * EPS


def t_le(a, b):
    return a - abs(a) * EPS <= b + abs(b) * EPS


def t_ge(a, b):
    return a + abs(a) * EPS >= b - abs(b) * EPS


def t_eq(a, b):
    return t_le(a, b) and t_le(b, a)


def band_of(f):
    return int(10.0 * math.log10(f) + 0.5)


def lower(b):
    return 10.0 ** ((2 * b - 1) / 20.0)


def upper(b):
    return 10.0 ** ((2 * b + 1) / 20.0)


# ---- locators -------------------------------------------------------------------------------

def loc_slope(S, tolerant):
    n = len(S)
    bb, tn = list(S), [0.0] * n
    for i in range(1, n - 1):
        if tolerant:
            d = (S[i] - S[i - 1]) + (S[i] - S[i + 1])
            if t_le(abs(d), 1e-9):
                d = 0.0
            tone = t_gt(d, 0.0)
        else:
            tone = 2 * S[i] - S[i - 1] - S[i + 1] > 1e-9
        if tone:
            bb[i], tn[i] = 0.0, S[i]
    d = S[n - 1] - S[n - 2]
    if (t_ge(d, 1.0) if tolerant else d >= 1.0):
        bb[n - 1], tn[n - 1] = 0.0, S[n - 1]
    return bb, tn


def loc_freq(S, step, margin, tolerant):
    n = len(S)
    gt = t_gt if tolerant else (lambda a, b: a > b)
    lt = t_lt if tolerant else (lambda a, b: a < b)
    le = t_le if tolerant else (lambda a, b: a <= b)
    occupied = [i for i in range(n) if S[i] > 0.001]
    if not occupied and not tolerant:
        return list(S), [0.0] * n
    first = occupied[0] if occupied else 0
    last = occupied[-1] if occupied else 0
    sl = [0.0] * n
    flag = [False] * n
    adj = [0.0] * n
    asl = [0.0] * (2 * n + 3)
    avg = [0.0] * n
    base = [0.0] * n
    for i in range(first + 1, last + 1):
        sl[i] = S[i] - S[i - 1]
    for i in range(first + 2, last + 1):
        if gt(abs(sl[i] - sl[i - 1]), step):
            flag[i] = True
    for i in range(first + 2, last + 1):
        if not flag[i]:
            continue
        if gt(sl[i], 0.0) and gt(sl[i], sl[i - 1]):
            pass
        elif le(sl[i], 0.0) and gt(sl[i - 1], 0.0):
            flag[i] = False
            flag[i - 1] = True
        else:
            flag[i] = False
    for i in range(first, last):
        adj[i] = (S[i - 1] + S[i + 1]) * 0.5 if flag[i] else S[i]
    adj[last] = S[last - 1] + sl[last - 1] if flag[last] else S[last]
    for i in range(first + 1, last + 1):
        asl[i] = adj[i] - adj[i - 1]
    asl[first] = asl[first + 1]
    asl[last + 1] = asl[last]
    for i in range(first, last):
        avg[i] = (asl[i] + asl[i + 1] + asl[i + 2]) / 3.0
    base[first] = S[first]
    for i in range(first + 1, last + 1):
        base[i] = base[i - 1] + avg[i - 1]
    bb, tn = [0.0] * n, [0.0] * n
    for i in range(n):
        if lt(S[i] - base[i], margin):
            bb[i] = S[i]
        else:
            tn[i] = S[i]
    return bb, tn


def interp(S, gap_value=None):
    """Fills gaps in place; gap_value None selects the array rule (|level| < 0.1)."""
    n = len(S)
    if gap_value is None:
        gap = lambda v: abs(v) < 0.1
        val = lambda v: abs(v) > 0.1
    else:
        gap = lambda v: t_eq(v, gap_value)
        val = lambda v: not t_eq(v, gap_value)
    for i in range(n - 1):
        if val(S[i]) and gap(S[i + 1]):
            j = i
            while j < n - 1 and not (gap(S[j]) and val(S[j + 1])):
                j += 1
            if j < n - 1:
                m = j + 1 - i
                for k in range(i + 1, j + 1):
                    S[k] = S[i] + (k - i) * ((S[j + 1] - S[i]) / m)
    if gap(S[0]):
        k = next((k for k in range(1, n) if gap(S[k - 1]) and val(S[k])), None)
        if k is not None and k < n - 1:
            slope = S[k + 1] - S[k]
            sk = S[k]
            for i in range(0, k + 1):
                S[i] = sk - slope * (k - i)
    if gap(S[n - 1]):
        i = next((i for i in range(n - 2, -1, -1) if val(S[i]) and gap(S[i + 1])), None)
        if i is not None and i > 0:
            slope = S[i - 1] - S[i]
            si = S[i]
            for j in range(i, n):
                S[j] = si - slope * (j - i)


def check(S, k, margin, gap_value, bb, tn, tolerant):
    n = len(S)
    gt = t_gt if tolerant else (lambda a, b: a > b)
    le = t_le if tolerant else (lambda a, b: a <= b)
    while True:
        count = 0
        for i in range(n):
            if not gt(tn[i], 1.0):
                continue
            if i < k:
                if i == 0 or i == n - 1:
                    continue
                m = (S[i - 1] + S[i + 1]) * 0.5 + margin
                if le(tn[i], m):
                    tn[i], bb[i] = 0.0, S[i]
                    count += 1
                else:
                    tn[i], bb[i] = S[i], 0.0
            else:
                if le(tn[i] - bb[i], margin):
                    tn[i], bb[i] = 0.0, S[i]
                    count += 1
                else:
                    bb[i] = 0.0
        interp(bb, gap_value if tolerant else None)
        if count == 0:
            return


def cut_index(cut_frequency):
    k = band_of(cut_frequency) - 19
    return 0 if k < 0 or k >= N else k


def bb_tones(S, margin, cut_frequency, method, step, tone_margin):
    k = cut_index(cut_frequency)
    if method == 1:
        bb, tn = loc_freq(S, step, tone_margin, False)
    else:
        bb, tn = loc_slope(S, False)
    interp(bb)
    check(S, k, margin, None, bb, tn, False)
    for i in range(k + 1):
        bb[i], tn[i] = S[i], 0.0
    for i in range(k + 1, N):
        tn[i] = 10 * math.log10(10 ** (S[i] / 10) - 10 ** (bb[i] / 10)) if S[i] > bb[i] else 0.0
    return k, bb, tn


# ---- tone spectra and Doppler ---------------------------------------------------------------

def split(level, f, lo, hi):
    assert t_lt(lo, hi) and t_le(lo, f) and t_le(f, hi)
    e = 10 ** (level / 10)
    w = hi - lo
    return 10 * math.log10((hi - f) * e / w), 10 * math.log10((f - lo) * e / w)


def tone_spectrum(f, band, level):
    out = [0.0] * N
    b = band + 17
    if t_gt(lower(b) * 1.04, f):
        a, c = split(level, f, lower(b) / 1.04, lower(b) * 1.04)
        if band - 1 >= 0:
            out[band - 1] = a
        out[band] = c
    elif t_gt(f, upper(b) / 1.04):
        a, c = split(level, f, upper(b) / 1.04, upper(b) * 1.04)
        out[band] = a
        if band + 1 < N:
            out[band + 1] = c
    else:
        out[band] = level
    return out


def dopplerize(T, B, ratio, f, exact, keep):
    """Returns (level, unshifted, shifted, fd); B is changed in place."""
    n = len(T)
    b = band_of(f)
    i = b - 17
    near_low = t_gt(lower(b) * 1.04, f)
    near_high = t_gt(f, upper(b) / 1.04)
    L = 0.0
    E = lambda x: 10 ** (0.1 * x)

    def correct(q, C):
        if keep:
            return T[i] + C
        if exact:
            held = t_le(E(B[q]), E(T[i] + C) - E(T[i])) or T[i] < 0.001
            if held:
                return T[i]
            B[q] = 10 * math.log10(E(B[q]) - E(T[i] + C) + E(T[i]))
            return T[i] + C
        held = t_le(B[q], T[i] - C) or T[i] < 0.001
        if held:
            return T[i]
        B[q] = 10 * math.log10(E(B[q]) - E(T[i] - C))
        return T[i] + C

    if 1 <= i <= n - 2:
        if not near_low and not near_high:
            L = T[i]
        elif near_low:
            q = i - 1
            if T[q] > 0.001:
                L = 10 * math.log10(E(T[q]) + E(T[i]))
            else:
                A = 10 * math.log10(lower(b) * 1.04 - lower(b) / 1.04)
                L = correct(q, A - 10 * math.log10(f - lower(b) / 1.04))
        elif i != n - 2:
            q = i + 1
            if t_gt(T[q], 0.0):
                L = 10 * math.log10(E(T[i]) + E(T[q]))
            else:
                A = 10 * math.log10(upper(b) * 1.04 - upper(b) / 1.04)
                L = correct(q, A - 10 * math.log10(upper(b) * 1.04 - f))
    cut = lambda s: [0.0 if v < 0.001 else v for v in s]
    un = cut(tone_spectrum(f, i, L)) if 0 <= i < n else [0.0] * n
    if 1 <= i <= n - 2 and near_low:
        if T[i - 1] > 0.001:
            un[i - 1], un[i] = T[i - 1], T[i]
        elif t_eq(L, T[i]):
            un[i], un[i - 1] = T[i], 0.0
        if i != n - 2:
            if T[i + 1] > 0.001:
                un[i + 1], un[i] = T[i + 1], T[i]
            elif t_eq(L, T[i]):
                un[i], un[i + 1] = T[i], 0.0
    fd = ratio * f
    idd = band_of(fd) - 17
    sh = cut(tone_spectrum(fd, idd, L)) if 0 <= idd < n else [0.0] * n
    return L, un, sh, fd


# ---- harmonic separation --------------------------------------------------------------------

def harmonic_bands(fundamental):
    out = set()
    for h in range(1, 6):
        f = h * fundamental
        b = band_of(f)
        i = b - 17
        if t_le(lower(b) * 1.04, f):
            cands = [i] + ([i + 1] if t_gt(f, upper(b) / 1.04) else [])
        else:
            cands = [i - 1, i]
        out.update(c for c in cands if 0 <= c < N)
    return sorted(out)


def ensca(S, margin, cut_frequency, fundamental, gap_value, method, step, tone_margin,
          tone_list):
    """Returns (broadband, tone levels, tone list)."""
    if method == 0:
        bb, tn = loc_slope(S, True)
    else:
        bb, tn = loc_freq(S, step, tone_margin, True)
    interp(bb, gap_value)
    check(S, cut_index(cut_frequency), margin, gap_value, bb, tn, True)
    hb = harmonic_bands(fundamental)
    for i in range(N):
        if i in hb and bb[i] + 3.0 < S[i]:
            tn[i] = 10 * math.log10(10 ** (0.1 * S[i]) - 10 ** (0.1 * bb[i]))
        else:
            tn[i], bb[i] = gap_value, S[i]
    adj = list(tn)
    table = []
    for h in range(1, 6):
        f = h * fundamental
        b = band_of(f)
        i = b - 17
        if t_gt(lower(b) * 1.04, f):
            lo_b, hi_b, hi, lo = i - 1, i, lower(b) * 1.04, lower(b) / 1.04
        elif t_gt(f, upper(b) / 1.04):
            lo_b, hi_b, hi, lo = i, i + 1, upper(b) * 1.04, upper(b) / 1.04
        else:
            table.append((i, i, 1.0))
            continue
        P = 1e10
        table.append((lo_b, hi_b, ((hi - f) * P / (hi - lo)) / ((f - lo) * P / (hi - lo))))
    for i in range(1, 24):
        if not tn[i] > 0.1:
            continue
        for j in range(4):
            low, high, ratio = table[j]
            nlow, nhigh, nratio = table[j + 1]
            if low == high == nlow == i and nhigh != i:
                adj[i] -= 3.0
            elif low != i and high == nlow == nhigh == i:
                adj[i] -= 3.0
            elif low != i and high == nlow == i and nhigh != i:
                if (j > 0 and table[j - 1][1] >= low) or i >= 23:
                    adj[i] -= 3.0
                else:
                    e1 = 10 ** (tn[i - 1] / 10) / ratio
                    e2 = 10 ** (tn[i + 1] / 10) * nratio
                    s = e1 / (e1 + e2)
                    adj[i - 1] = 10 * math.log10(10 ** (tn[i] / 10) * s + 10 ** (tn[i - 1] / 10))
                    adj[i] = 0.0
                    adj[i + 1] = 10 * math.log10(10 ** (tn[i] / 10) * (1 - s)
                                                 + 10 ** (tn[i + 1] / 10))
    for h in range(1, 6):
        f = h * fundamental
        i = band_of(f) - 17
        if i >= 24 or i < 0:
            continue
        L = dopplerize(adj, bb, 1.0, f, True, False)[0]
        tone_list.append((i, h, f, L))
    energy = [0.0] * N
    for (_, _, f, L) in tone_list:
        b = band_of(f)
        i = b - 17
        if t_gt(lower(b) * 1.04, f) and i > 0:
            a, c = split(L, f, lower(b) / 1.04, lower(b) * 1.04)
            parts = [(i - 1, a), (i, c)]
        elif t_gt(f, upper(b) / 1.04) and i < 23:
            a, c = split(L, f, upper(b) / 1.04, upper(b) * 1.04)
            parts = [(i, a), (i + 1, c)]
        else:
            parts = [(i, L)]
        for band, level in parts:
            if 0 <= band < N:
                energy[band] += 10 ** (level / 10)
    tn = [10 * math.log10(e) if e > 3.0 else 0.0 for e in energy]
    return bb, tn, tone_list


# ---- the worked examples ---------------------------------------------------------------------

FLOOR = [60, 62, 63, 64, 65, 66, 66, 65, 64, 63, 62, 61, 60, 59, 58, 57, 56, 55, 54, 53, 52, 51,
         50, 49]
SHAPED = [float(v) for v in FLOOR]
for band, rise in ((8, 10.0), (12, 8.0), (16, 6.0), (20, 4.0)):
    SHAPED[band] += rise

HARMONIC = [float(v) for v in FLOOR]
for band, rise in ((9, 4.0), (10, 12.0), (12, 9.0), (13, 7.0), (14, 5.0), (15, 14.0), (16, 11.0),
                   (17, 6.0), (19, 9.0)):
    HARMONIC[band] += rise
FUNDAMENTAL = 453.45

# Bare locators on the shaped spectrum.
FREQ_BB, FREQ_TN = loc_freq(SHAPED, 2.0, 3.0, True)

# Calc_BBTones with both locators: check margin 1.5 dB, cut at 250 Hz (k = 5), on the shaped
# spectrum and on it with a 3 dB bump at band 19, which the slope locator keeps as a tone and the
# frequency locator does not.
BUMPED = list(SHAPED)
BUMPED[19] += 3.0
BB_CASES = []
for levels in (SHAPED, BUMPED):
    for method in (0, 1):
        BB_CASES.append((method, levels, bb_tones(levels, 1.5, 250.0, method, 2.0, 3.0)))

# Calc_EnscaBBTones with the slope locator, gap value 0.0, cut at 125 Hz, called twice.
ENSCA_1 = ensca(HARMONIC, 1.0, 125.0, FUNDAMENTAL, 0.0, 0, 2.0, 3.0, [])
ENSCA_2 = ensca(HARMONIC, 1.0, 125.0, FUNDAMENTAL, 0.0, 0, 2.0, 3.0, list(ENSCA_1[2]))

# Calc_DopplerizeTone near each edge of grid band 10 (band number 27, 446.7 Hz to 562.3 Hz), a
# 70 dB tone over a floor that can give its remainder back (69.5 dB) or cannot (50 dB), each
# shifted into the overlap of another band edge.
DOPPLER_T = [0.0] * N
DOPPLER_T[10] = 70.0
LOW_EDGE = (455.0, 1.55)   # within 1.04 of the lower edge; shifted to 705.25 Hz
HIGH_EDGE = (550.0, 0.82)  # within 1.04 of the upper edge; shifted to 451 Hz
DOPPLER_CASES = []
for f, ratio in (LOW_EDGE, HIGH_EDGE):
    for floor, exact, keep in ((69.5, True, False), (69.5, False, False), (50.0, True, False),
                               (50.0, False, True)):
        B = [floor] * N
        L, un, sh, fd = dopplerize(DOPPLER_T, B, ratio, f, exact, keep)
        DOPPLER_CASES.append((f, ratio, floor, exact, keep, L, B, un, sh))


def arr(values):
    return "{" + ", ".join(repr(float(v)) for v in values) + "}"


def main():
    lines = ["// Generated by generate_tone_reference.py; do not edit.", ""]
    lines.append("constexpr double shaped_levels[24] = %s;" % arr(SHAPED))
    lines.append("constexpr double harmonic_levels[24] = %s;" % arr(HARMONIC))
    lines.append("constexpr double harmonic_fundamental = %r;" % FUNDAMENTAL)
    lines.append("constexpr double frequency_locator_broadband[24] = %s;" % arr(FREQ_BB))
    lines.append("constexpr double frequency_locator_tones[24] = %s;" % arr(FREQ_TN))
    lines.append("struct bb_tones_reference { int method; double levels[24]; int k; "
                 "double broadband[24]; double tones[24]; };")
    lines.append("constexpr bb_tones_reference bb_tones_cases[] = {")
    for method, levels, (k, bb, tn) in BB_CASES:
        lines.append("    {%d, %s,\n     %d, %s,\n     %s}," % (method, arr(levels), k, arr(bb),
                                                            arr(tn)))
    lines.append("};")
    for name, (bb, tn, tl) in (("first", ENSCA_1), ("second", ENSCA_2)):
        lines.append("constexpr double ensca_%s_broadband[24] = %s;" % (name, arr(bb)))
        lines.append("constexpr double ensca_%s_tones[24] = %s;" % (name, arr(tn)))
    lines.append("struct listed_tone { int band; double harmonic; double frequency; "
                 "double level; };")
    lines.append("constexpr listed_tone ensca_tone_list[] = {")
    for (i, h, f, L) in ENSCA_2[2]:
        lines.append("    {%d, %r, %r, %r}," % (i, float(h), f, L))
    lines.append("};")
    lines.append("struct doppler_reference { double frequency; double ratio; double floor; "
                 "bool exact_energy; "
                 "bool keep_broadband; double level; double broadband[24]; double unshifted[24]; "
                 "double shifted[24]; };")
    lines.append("constexpr doppler_reference doppler_cases[] = {")
    for (f, ratio, floor, exact, keep, L, B, un, sh) in DOPPLER_CASES:
        lines.append("    {%r, %r, %r, %s, %s, %r,\n     %s,\n     %s,\n     %s}," % (
            f, ratio, floor, str(exact).lower(), str(keep).lower(), L, arr(B), arr(un), arr(sh)))
    lines.append("};")
    with open("tone_reference.inc", "w") as out:
        out.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
