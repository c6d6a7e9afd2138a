"""The in-call screen at work: frames as in the other screens, and the calls that it is about."""

import struct
from typing import Any

from emulator.process import Process
from emulator.scenarios.scenario import (
    Load,
    Scenario,
    expect,
    expect_original_once,
    expect_rect,
    started,
)
from emulator.scenarios.screens import NUMBER, marked, text, view
from emulator.world import World

STRANGER, CONTACT = -1, 7


def call(process: Process, uid: int) -> Any:
    """Returns a new call that the library has taken note of."""
    made = process.new("TUTelephonyCall", abUID=uid, destinationID=text(process, NUMBER))
    expect("the call", process.send(made, "initWithCall:", None), made)
    return made


def in_call_view(load: Load) -> None:
    """iOS 7.0: the description low in the display, icon and text centred in the column."""
    process = started(load, World(version=7.0))
    marked(process, 12)
    call(process, STRANGER)
    lcd = view(process, "InCallLCDView", 0.0, 20.0, 320.0, 97.5)
    big = view(process, "TPLCDTextView", 20.0, 10.0, 250.0, 40.0)
    small = view(process, "TPLCDLabelView", 21.5, 50.0, 250.0, 20.0)
    lcd.set_variable("_textView", big)
    lcd.set_variable("_labelView", small)
    process.send(lcd, "layoutSubviews")
    expect_rect("the text", big, 20.0, 5.0, 280.0, 40.0)
    expect_rect("the label", small, 21.5, 45.0, 280.0, 20.0)
    expect_rect("the line", lcd.find(1004), 0.0, 75.25, 320.0, 16.25)
    expect_rect("the description", lcd.find(1000), 38.0, 0.0, 262.0, 16.25)
    expect_rect("the icon", lcd.find(1003), 116.0, 0.0, 15.0, 15.0)
    painted = lcd.find(1000).attributedText
    expect("its text", painted.text, "推销 | 12人标记")
    expect("its colours", [span for _, _, span in painted.attributes], [(0, 3), (3, 7)])


def changed_arguments(load: Load) -> None:
    """Flag and font are changed on the way to the application's own method, for strangers only."""
    for uid, size in ((STRANGER, 14.0), (CONTACT, 17.5)):
        process = started(load, World(version=7.0, short_screen=True))
        label = process.new("TPLCDTextView")
        process.send(label, "setCenterText:", False)
        expect_original_once(process, label, "setCenterText:", True)
        calls = [call(process, uid), call(process, uid)]
        process.runtime.forget()
        process.send(label, "setCenterText:", False)
        expect_original_once(process, label, "setCenterText:", False)
        font = process.new("UIFont", pointSize=17.5)
        process.send(label, "setLCDTextFont:", font)
        sizes = [
            e.arguments[0].pointSize for e in process.runtime.log if "setLCDTextFont" in e.text
        ]
        expect("the font's size", sizes, [size])
        process.runtime.release(calls[1])
        process.send(label, "setCenterText:", False)
        centred = [e.arguments for e in process.runtime.log if "setCenterText" in e.text]
        expect("centred after the second call's end", centred, [(False,), (True,)])


def in_call_field(load: Load) -> None:
    """iOS 7.0, short screen: three lines in the content view, measured without bounds."""
    process = started(load, World(version=7.0, short_screen=True))
    marked(process, 12)
    call(process, STRANGER)
    field = view(process, "InCallLCDField", 0.0, 20.0, 320.0, 97.5)
    big = view(process, "TPLCDTextView", 15.5, 10.0, 250.0, 40.0)
    small = view(process, "TPLCDLabelView", 21.5, 50.0, 250.0, 20.0)
    content = process.new("UIView")
    field.add(content)
    for name, part in (("_textView", big), ("_labelView", small), ("_contentView", content)):
        field.set_variable(name, part)
    process.send(field, "layoutSubviews")
    expect_rect("the text", big, 15.5, 15.0, 280.0, 55.0)
    expect_rect("the label", small, 21.5, 54.0, 280.0, 20.0)
    expect_rect("the description", content.find(1005), 33.5, 68.0, 262.0, 20.0)
    expect_rect("the icon", content.find(1006), 111.5, 70.5, 15.0, 15.0)


def contact_region(load: Load) -> None:
    """iOS 7.1: a contact's region before the label, its place by a float variable and a CGRect."""
    process = started(load, World(version=7.1))
    call(process, CONTACT)
    for own, text_x, label, icon in (
        ("手机", 0.0, (40.0, 50.0, 200.0, 20.0), (-20.0, 3.0, 15.0, 15.0)),
        ("手机", 19.0, (21.5, 50.0, 120.5, 20.0), (-1.0, 3.0, 15.0, 15.0)),
        ("0:42", 19.0, (21.5, 50.0, 120.5, 20.0), (-20.75, 3.0, 15.0, 15.0)),
    ):
        field = process.new("InCallLCDField")
        small = view(process, "TPLCDLabelView", 21.5, 50.0, 120.5, 20.0)
        small.textRect = (text_x, 0.0, 80.0, 20.0)
        small.set_variable("_text", text(process, own))
        process.machine.write(
            small.place("_fontSize"), struct.pack("<d" if process.runtime.abi.wide else "<f", 16.5)
        )
        field.set_variable("_labelView", small)
        process.send(field, "layoutSubviews")
        expect("the label's text", small.variable("_text").text, f"北京 联通 | {own}")
        expect_rect("the label", small, *label)
        expect_rect("the icon", small.find(1004), *icon)


SCENARIOS = [
    Scenario("in-call screen: frames through memory, description centred", in_call_view),
    Scenario("in-call screen: flag and font changed on their way", changed_arguments),
    Scenario("in-call screen: the field's lines, measured without bounds", in_call_field),
    Scenario("in-call screen: a contact's region, by a float variable", contact_region),
]
