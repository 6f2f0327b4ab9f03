"""Pictures of a virtual screen: reads the screen file that Xvfb keeps, judges it, writes PNG."""

import collections
import struct
import zlib


class Picture:
    """Rows of red, green and blue bytes."""

    def __init__(self, width, height, rows):
        self.width, self.height, self.rows = width, height, rows

    def colours(self):
        """How many pixels there are of each colour."""
        counts = collections.Counter()
        for row in self.rows:
            counts.update(zip(row[0::3], row[1::3], row[2::3]))
        return counts

    def is_blank(self):
        """True when there is next to nothing to see: few colours, or nearly all of one."""
        counts = self.colours()
        return len(counts) < 100 or max(counts.values()) > 0.95 * self.width * self.height

    def save(self, path):
        raw = b"".join(b"\0" + row for row in self.rows)
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            for kind, data in ((b"IHDR", header), (b"IDAT", zlib.compress(raw, 6)), (b"IEND", b"")):
                file.write(struct.pack(">I", len(data)) + kind + data)
                file.write(struct.pack(">I", zlib.crc32(kind + data)))


def read_screen(path):
    """The picture in an X window dump of 32 bits a pixel, which is what Xvfb keeps at depth 24."""
    with open(path, "rb") as file:
        data = file.read()
    fields = struct.unpack_from(">25I", data)
    header_size, version, width, height = fields[0], fields[1], fields[4], fields[5]
    least_first, bits, stride, colours = fields[7] == 0, fields[11], fields[12], fields[19]
    if version != 7 or bits != 32 or not least_first:
        raise ValueError(f"{path}: not a screen of depth 24 in this machine's byte order")
    start = header_size + colours * 12
    rows = []
    for y in range(height):
        line = data[start + y * stride:start + y * stride + width * 4]
        row = bytearray(width * 3)
        row[0::3], row[1::3], row[2::3] = line[2::4], line[1::4], line[0::4]
        rows.append(bytes(row))
    return Picture(width, height, rows)
