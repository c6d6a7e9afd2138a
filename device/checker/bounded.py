"""Reading of bytes that nobody vouches for: what leaves the data is an error with a message."""

import struct

MOST_LEB_BYTES = 10
MOST_BITS = 64
PRINTABLE = bytes(range(0x20, 0x7F))


class BadImage(Exception):
    """A file that cannot be what it claims to be; the message says where it breaks."""


class Block:
    """A run of bytes under a name; every access outside it raises BadImage with that name."""

    def __init__(self, data: bytes, what: str) -> None:
        self.data = data
        self.what = what

    def __len__(self) -> int:
        return len(self.data)

    def take(self, offset: int, size: int) -> bytes:
        """Returns `size` bytes from `offset`."""
        if offset < 0 or size < 0 or offset + size > len(self.data):
            raise BadImage(f"{self.what} has no {size} bytes at offset {offset}")
        return self.data[offset : offset + size]

    def numbers(self, layout: str, offset: int) -> tuple[int, ...]:
        """Returns the integers of a struct layout such as "<4I" found at `offset`."""
        return struct.unpack(layout, self.take(offset, struct.calcsize(layout)))

    def number(self, layout: str, offset: int) -> int:
        """Returns the one integer of a struct layout such as "<I" found at `offset`."""
        return self.numbers(layout, offset)[0]

    def string(self, offset: int) -> str:
        """Returns the text from `offset` up to its zero byte, which must come."""
        end = self.data.find(b"\0", offset) if 0 <= offset < len(self.data) else -1
        if end < 0:
            raise BadImage(f"{self.what} has no complete name at offset {offset}")
        return printable(self.data[offset:end], f"{self.what} at offset {offset}")


class Cursor:
    """Reads a block from front to back."""

    def __init__(self, block: Block, position: int = 0) -> None:
        self.block = block
        self.position = position

    def at_end(self) -> bool:
        """Tells whether no byte is left."""
        return self.position >= len(self.block)

    def byte(self) -> int:
        """Returns the next byte."""
        value = self.block.take(self.position, 1)[0]
        self.position += 1
        return value

    def string(self) -> str:
        """Returns the next text, which ends in a zero byte."""
        text = self.block.string(self.position)
        self.position += len(text) + 1
        return text

    def unsigned(self) -> int:
        """Returns the next number in the unsigned variable-length form, below 2^64."""
        return self._leb()[0]

    def signed(self) -> int:
        """Returns the next number in the signed variable-length form."""
        value, bits, last = self._leb()
        return value - (1 << bits) if last & 0x40 else value

    def _leb(self) -> tuple[int, int, int]:
        start, value = self.position, 0
        for index in range(MOST_LEB_BYTES):
            byte = self.byte()
            value |= (byte & 0x7F) << (7 * index)
            if byte & 0x80 == 0:
                if value >> MOST_BITS:
                    break
                return value, 7 * (index + 1), byte
        raise BadImage(f"{self.block.what} has a number beyond 64 bits at offset {start}")


def printable(raw: bytes, where: str) -> str:
    """Returns a name as text; anything but printable ASCII raises BadImage."""
    if raw.translate(None, PRINTABLE):
        raise BadImage(f"{where} is not a name: it has bytes that are no printable ASCII")
    return raw.decode("ascii")
