"""The few facts that a pretend process stands in."""

from dataclasses import dataclass, field
from typing import Any

PHONE = "com.apple.mobilephone"


@dataclass
class World:
    """What the process is and what its companion knows. Classes that are `missing` are not found,
    messages in `raising` raise, `files` exist; `identities` are by number."""

    identifier: str | None = PHONE
    version: float = 7.1
    short_screen: bool = False
    missing: frozenset[str] = frozenset()
    raising: frozenset[str] = frozenset()
    area: str = "北京 联通"
    files: frozenset[str] = frozenset()
    identities: dict[str, Any] = field(default_factory=dict)
