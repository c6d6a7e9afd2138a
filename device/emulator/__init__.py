"""The device library at work: each slice runs on an emulated processor in a pretend process."""
