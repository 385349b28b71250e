#!/usr/bin/python3
"""Makes ding.wav, the sound that tells of a stopped popup: a soft bell of two partials.

    make_ding.py FILE

The same bytes on every machine: the sums are made with whole numbers, and what is rounded before is
rounded to so few digits that every machine's cosine gives the same.
"""

import collections
import itertools
import math
import pathlib
import struct
import sys
import wave

RATE = 44_100  # samples a second
LENGTH = RATE * 9 // 10
RISING = RATE // 200  # the first samples, which come without a crack
FADING = RATE // 20  # the last ones, which end in silence
UNIT = 1 << 30  # of the whole numbers that stand for 1

# Hertz, the part of full strength that it starts with, and the seconds in which it falls to a third.
Partial = collections.namedtuple("Partial", "pitch strength falling")

# The second is where a small bell has it, and is gone sooner.
BELL = [Partial(880, 0.30, 0.15), Partial(880 * 2.76, 0.10, 0.06)]


def ring(partial):
    """A sine that dies away, each sample from the two before."""
    turn = 2 * math.pi * partial.pitch / RATE
    damping = math.exp(-1 / (RATE * partial.falling))
    of_last = round(2 * damping * math.cos(turn) * UNIT)
    of_one_before = round(damping * damping * UNIT)
    last, this = 0, round(partial.strength * 32_767 * damping * math.sin(turn) * UNIT)
    while True:
        yield last
        last, this = this, (of_last * this - of_one_before * last) // UNIT


def samples():
    """From -32,768 to 32,767."""
    for at, parts in enumerate(itertools.islice(zip(*map(ring, BELL)), LENGTH)):
        yield sum(parts) * min(at, RISING) * min(LENGTH - at, FADING) // (RISING * FADING * UNIT)


def main():
    with wave.open(str(pathlib.Path(sys.argv[1])), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(struct.pack(f"<{LENGTH}h", *samples()))


main()
