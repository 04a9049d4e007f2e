"""A small PNG codec: every colour type and depth for writing, 8 bits without interlacing for reading."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
GRAY, RGB, PALETTE, GRAY_ALPHA, RGBA = 0, 2, 3, 4, 6
CHANNELS = {GRAY: 1, RGB: 3, PALETTE: 1, GRAY_ALPHA: 2, RGBA: 4}
TYPE_OF_CHANNELS = {1: GRAY, 3: RGB, 4: RGBA}
# First column and row, and their distances, of the seven passes of an interlaced picture.
PASSES = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)]


def chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))


def pack_row(samples, depth):
    if depth == 16:
        return struct.pack(f">{len(samples)}H", *samples)
    bits = "".join(format(s, f"0{depth}b") for s in samples)
    bits += "0" * (-len(bits) % 8)
    return int(bits, 2).to_bytes(len(bits) // 8, "big")


def encode(rows, color_type, depth=8, extra=b"", interlaced=False):
    """`rows` of pixels, a pixel being a tuple of samples. `extra`: chunks before the image data."""
    width, height = len(rows[0]), len(rows)
    data = b""
    for x0, y0, dx, dy in PASSES if interlaced else [(0, 0, 1, 1)]:
        for row in rows[y0::dy]:
            samples = [sample for pixel in row[x0::dx] for sample in pixel]
            if samples:
                data += b"\0" + pack_row(samples, depth)
    header = struct.pack(">IIBBBBB", width, height, depth, color_type, 0, 0, int(interlaced))
    return SIGNATURE + chunk(b"IHDR", header) + extra + chunk(b"IDAT", zlib.compress(data)) + chunk(b"IEND", b"")


def paeth(left, up, corner):
    by_distance = [(abs(up - corner), 0, left), (abs(left - corner), 1, up), (abs(left + up - 2 * corner), 2, corner)]
    return min(by_distance)[2]


def decode(data):
    """Rows of pixels of an 8-bit picture."""
    assert data.startswith(SIGNATURE)
    chunks, position = [], len(SIGNATURE)
    while position < len(data):
        (length,) = struct.unpack_from(">I", data, position)
        kind, body = data[position + 4 : position + 8], data[position + 8 : position + 8 + length]
        assert data[position : position + 12 + length] == chunk(kind, body)
        chunks.append((kind, body))
        position += 12 + length
    assert chunks[-1] == (b"IEND", b"")
    width, height, depth, color_type, *_, interlaced = struct.unpack(">IIBBBBB", chunks[0][1])
    assert depth == 8 and not interlaced
    n = CHANNELS[color_type]
    raw = zlib.decompress(b"".join(body for kind, body in chunks if kind == b"IDAT"))
    rows, above = [], bytes(width * n)
    for y in range(height):
        kind, *line = raw[y * (width * n + 1) : (y + 1) * (width * n + 1)]
        for i in range(width * n):
            left, corner = (line[i - n], above[i - n]) if i >= n else (0, 0)
            predicted = [0, left, above[i], (left + above[i]) // 2, paeth(left, above[i], corner)][kind]
            line[i] = (line[i] + predicted) % 256
        above = line
        rows.append([tuple(line[x * n : x * n + n]) for x in range(width)])
    return rows
