"""Reader of property lists as the device takes them: in XML or binary form with the standard
library, in the older text form, which that one does not read, by hand."""

import plistlib
import re
from typing import TypeAlias
from xml.parsers.expat import ExpatError

Value: TypeAlias = "str | list[Value] | dict[str, Value]"

TOKEN = re.compile(r'\s*(?:(?P<mark>[{}()=;,])|"(?P<quoted>[^"\\\n]*)"|(?P<bare>[\w./$-]+))', re.A)
MOST_LEVELS = 20
# What the standard library raises for bytes of another form or broken ones.
NO_PROPERTY_LIST = (
    plistlib.InvalidFileException,
    ExpatError,
    AttributeError,
    LookupError,
    RecursionError,
    TypeError,
    ValueError,
)


class BadPropertyList(Exception):
    """A property list that cannot be read; the message says where it breaks."""


def read(data: bytes) -> object:
    """Returns a property list's value from any of its forms."""
    try:
        value: object = plistlib.loads(data)
        return value
    except NO_PROPERTY_LIST:
        return _Text(data).value_alone()


class _Text:
    """The text form: { key = value; }, ( value, value ), and strings, quoted where they must be."""

    def __init__(self, data: bytes) -> None:
        try:
            self.text = data.decode("ascii").rstrip()
        except UnicodeDecodeError as error:
            raise BadPropertyList(f"it has a byte outside ASCII at {error.start}") from error
        self.position = 0

    def value_alone(self) -> Value:
        value = self._value(0)
        if self.position != len(self.text):
            raise BadPropertyList(f"it goes on after its value, at {self.position}")
        return value

    def _value(self, level: int) -> Value:
        if level > MOST_LEVELS:
            raise BadPropertyList(f"it is nested more than {MOST_LEVELS} levels deep")
        if self._accept("{"):
            return self._dictionary(level)
        return self._array(level) if self._accept("(") else self._string()

    def _dictionary(self, level: int) -> dict[str, Value]:
        found: dict[str, Value] = {}
        while not self._accept("}"):
            key = self._string()
            if key in found:
                raise BadPropertyList(f"it has the key {key} twice")
            self._require("=")
            found[key] = self._value(level + 1)
            self._require(";")
        return found

    def _array(self, level: int) -> list[Value]:
        found: list[Value] = []
        while not self._accept(")"):
            found.append(self._value(level + 1))
            if not self._accept(","):
                self._require(")")
                break
        return found

    def _string(self) -> str:
        match = TOKEN.match(self.text, self.position)
        if not match or match["mark"]:
            raise BadPropertyList(f"it has no string at {self.position}")
        self.position = match.end()
        return match["bare"] if match["quoted"] is None else match["quoted"]

    def _accept(self, mark: str) -> bool:
        match = TOKEN.match(self.text, self.position)
        if not match or match["mark"] != mark:
            return False
        self.position = match.end()
        return True

    def _require(self, mark: str) -> None:
        if not self._accept(mark):
            raise BadPropertyList(f"it has no '{mark}' at {self.position}")
