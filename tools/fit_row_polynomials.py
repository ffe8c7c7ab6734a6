#!/usr/bin/env python3
"""Prints the polynomials of geo/RowMath.h: minimax fits by Remez's exchange algorithm, constant first.

Needs mpmath. Takes a few seconds.
"""

import mpmath as mp

mp.mp.dps = 50
SAMPLES = 2000
TINY = mp.mpf(10) ** -30


def cos_of_root(t):
    return mp.cos(mp.sqrt(t))


def sinc_of_root(t):
    return mp.sin(mp.sqrt(t)) / mp.sqrt(t) if t > TINY else mp.mpf(1)


def acos_over_root(s):
    return mp.acos(s) / mp.sqrt(1 - s) if 1 - s > TINY else mp.sqrt(2)


def atan_of_root_over_root(v):
    return mp.atan(mp.sqrt(v)) / mp.sqrt(v) if v > TINY else mp.mpf(1)


def chebyshev_points(low, high, count):
    return [(low + high) / 2 - (high - low) / 2 * mp.cos(mp.pi * i / (count - 1)) for i in range(count)]


def levelled_fit(function, weight, points, degree):
    """The polynomial whose weighted error is the same at all points, with alternating sign."""
    size = degree + 2
    matrix = mp.matrix(size, size)
    values = mp.matrix(size, 1)
    for i, x in enumerate(points):
        for j in range(degree + 1):
            matrix[i, j] = x**j
        matrix[i, degree + 1] = (-1) ** i / weight(x)
        values[i] = function(x)
    solution = mp.lu_solve(matrix, values)
    return [solution[j] for j in range(degree + 1)], abs(solution[degree + 1])


def extremes(errors):
    """Where the error is largest between its changes of sign."""
    runs = [[0]]
    for i in range(1, len(errors)):
        if mp.sign(errors[i]) == mp.sign(errors[runs[-1][-1]]):
            runs[-1].append(i)
        else:
            runs.append([i])
    return [max(run, key=lambda i: abs(errors[i])) for run in runs]


def minimax(function, weight, low, high, degree):
    grid = chebyshev_points(low, high, SAMPLES + 1)
    exact = [(function(x), weight(x)) for x in grid]
    points = chebyshev_points(low, high, degree + 2)
    for _ in range(30):
        coefficients, level = levelled_fit(function, weight, points, degree)
        errors = [w * (mp.polyval(coefficients[::-1], x) - f) for x, (f, w) in zip(grid, exact)]
        largest = max(abs(error) for error in errors)
        peaks = extremes(errors)
        while len(peaks) > degree + 2:
            peaks.pop(0 if abs(errors[peaks[0]]) < abs(errors[peaks[-1]]) else -1)
        if len(peaks) < degree + 2 or largest < level * mp.mpf("1.0005"):
            break
        points = [grid[i] for i in peaks]
    return coefficients, largest


def show(name, function, weight, low, high, degree):
    coefficients, largest = minimax(function, weight, mp.mpf(low), mp.mpf(high), degree)
    print(f"{name}, weighted error {mp.nstr(largest, 3)}")
    print("   ", ", ".join(repr(float(c)) for c in coefficients))


# Weights: the error of sinc counts times the distance, that of the arc cosine times q squared, that of the arc tangent
# times its argument; the small constants keep the fits from running wild where that is 0.
ANTIPODE = mp.pi**2 * (1 + mp.mpf(10) ** -6)
EIGHTH_OF_A_TURN = mp.tan(mp.pi / 8) ** 2 * (1 + mp.mpf(10) ** -9)
show("CosOfRoot", cos_of_root, lambda t: mp.mpf(1), 0, ANTIPODE, 7)
show("SincOfRoot", sinc_of_root, lambda t: mp.sqrt(t) + mp.mpf("0.3"), 0, ANTIPODE, 7)
show("AcosOverRoot", acos_over_root, lambda s: 1 - s + mp.mpf("0.02"), 0, 1, 9)
show("AngleOf", atan_of_root_over_root, lambda v: mp.sqrt(v) + mp.mpf("0.02"), 0, EIGHTH_OF_A_TURN, 5)
