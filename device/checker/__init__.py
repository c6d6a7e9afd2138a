"""The independent checker of the device library: it shares no code with what builds it."""
