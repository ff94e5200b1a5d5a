#!/usr/bin/env python3
"""Tells which sounds are heard in a recording.

Usage: sounds_heard.py RECORDING WAVE...

RECORDING holds bare samples, WAVE is a wave file; both 16-bit, one channel,
44100 samples a second. Prints the names of the wave files in the order in which
they are heard, on one line, sample for sample and to the end. Stops at a sound that is none
of them with "noise", and at one that the recording's end cuts off with
"unfinished".

Silence is left out on both sides: neither the pauses between the sounds nor the
gap that a busy machine leaves within one make a difference.
"""

import array
import pathlib
import sys
import wave


def audible(data):
    samples = array.array("h", data[:len(data) // 2 * 2])
    return array.array("h", filter(None, samples)).tobytes()


def samples_of(path):
    with wave.open(str(path), "rb") as file:
        return file.readframes(file.getnframes())


def next_sound(rest, sounds):
    for name, sound in sounds.items():
        if rest.startswith(sound):
            return name
    if any(sound.startswith(rest) for sound in sounds.values()):
        return "unfinished"
    return "noise"


def heard(recording, sounds):
    rest = audible(recording)
    while rest:
        name = next_sound(rest, sounds)
        yield name
        if name not in sounds:
            return
        rest = rest[len(sounds[name]):]


def main(recording, *waves):
    paths = [pathlib.Path(path) for path in waves]
    sounds = {path.name: audible(samples_of(path)) for path in paths}
    print(*heard(pathlib.Path(recording).read_bytes(), sounds))


if __name__ == "__main__":
    main(*sys.argv[1:])
