"""Conditional jumps in a linked program: where they are, and what they are made into."""

import struct
import subprocess

LOADED_SEGMENT = 1


def segments(program):
    """Address, place in the file and size of what is loaded of a 64-bit ELF file."""
    start, = struct.unpack_from("<Q", program, 32)
    size, count = struct.unpack_from("<HH", program, 54)
    for index in range(count):
        kind, _, offset, address, _, length = struct.unpack_from("<IIQQQQ", program,
                                                                 start + index * size)
        if kind == LOADED_SEGMENT:
            yield address, offset, length


def label_offsets(path, prefix):
    """Maps labels that begin with `prefix` to places in the file. The linker keeps one copy of a
    function that several objects have, so that some labels may be gone."""
    loaded = list(segments(path.read_bytes()))
    symbols = subprocess.run(["nm", path], text=True, check=True, stdout=subprocess.PIPE).stdout
    offsets = {}
    for address, _, name in (line.split() for line in symbols.splitlines() if line[0] != " "):
        if name.startswith(prefix):
            place = int(address, 16)
            offsets[name] = next(offset + place - begin for begin, offset, length in loaded
                                 if begin <= place < begin + length)
    return offsets


def patched(program, offset, outcome):
    """The program with the conditional jump at `offset` taken "always" or "never"."""
    first, second = program[offset], program[offset + 1]
    if 0x70 <= first <= 0x7F:  # with a distance of one byte
        new = b"\xEB" + program[offset + 1:offset + 2] if outcome == "always" else b"\x90\x90"
    elif first == 0x0F and 0x80 <= second <= 0x8F:  # with one of four
        distance = program[offset + 2:offset + 6]
        new = b"\x90\xE9" + distance if outcome == "always" else b"\x90" * 6
    else:
        raise ValueError(f"no conditional jump at {offset:#x}: {first:02x} {second:02x}")
    return program[:offset] + new + program[offset + len(new):]
