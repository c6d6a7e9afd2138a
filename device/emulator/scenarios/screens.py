"""The screens at work: numbers that the process gives arrive in the frames that the library sets.
Rectangles are (x, y, width, height) in points; fractions are such that 32 bits hold them."""

import struct
from typing import Any

from emulator import abi
from emulator.process import Process
from emulator.scenarios.scenario import (
    Load,
    Scenario,
    expect,
    expect_original_once,
    expect_rect,
    started,
)
from emulator.world import World

NUMBER = "01066668888"
USER_MARK = 7


def text(process: Process, value: str) -> Any:
    """Returns a new text of the process."""
    return process.new("NSString", text=value)


def view(process: Process, kind: str, *frame: float, **attributes: Any) -> Any:
    """Returns a new view."""
    return process.new(kind, frame=frame, **attributes)


def marked(process: Process, marks: int) -> Any:
    """Returns what is known of a number that so many users have marked, and makes it known."""
    identity = process.new("ZQNumberIdentity", type=USER_MARK, numOfMark=marks)
    identity.number, identity.identity = text(process, NUMBER), text(process, "推销")
    process.runtime.world.identities[NUMBER] = identity
    return identity


# The dialer


def typed(process: Process) -> Any:
    """Types a number on the dialer and returns its display."""
    lcd = view(process, "PHHandsetDialerLCDView", 0.0, 20.0, 321.5, 100.0)
    lcd.numberLabel = process.new("UILabel", text=text(process, NUMBER))
    lcd.nameAndLabelView = view(process, "DialerNameLine", 0.0, 44.0, 320.0, 27.25)
    offer = process.new("UILabel", text=text(process, "+ 添加到通讯录"))
    lcd.nameAndLabelView.addToContactsLabel = offer
    process.send(lcd, "setName:numberLabel:", None, None)
    expect(
        "what ran first", expect_original_once(process, lcd, "setName:numberLabel:", None, None), 0
    )
    return lcd


def dialer_row(load: Load) -> None:
    """iOS 7.1: icon and description, centred."""
    process = started(load, World(version=7.1))
    lcd = typed(process)
    description = lcd.find(1002)
    expect("the description", description.text.text, "北京 联通")
    expect_rect("the row", lcd.find(1000), 133.25, 44.0, 55.0, 27.25)
    expect_rect("the icon", lcd.find(1001), 0.0, 5.0, 15.0, 15.0)
    expect_rect("the description", description, 20.0, 0.0, 35.0, 27.25)
    expect("the offer", lcd.find(1004), None)
    expect("hidden: name line, row", (lcd.nameAndLabelView.hidden, lcd.find(1000).hidden), (1, 0))


def dialer_offer(load: Load) -> None:
    """iOS 7.0 on a short screen: separator and offer too, and the offer's colour when touched."""
    process = started(load, World(version=7.0, short_screen=True))
    lcd = typed(process)
    expect_rect("the row", lcd.find(1000), 79.25, 41.0, 163.0, 27.25)
    expect_rect("the separator", lcd.find(1003), 60.0, 5.0, 1.0, 17.25)
    expect_rect("the offer", lcd.find(1004), 66.0, 0.0, 97.0, 25.0)
    offer = lcd.nameAndLabelView.addToContactsLabel
    expect("the application's own offer", offer.text.text, "添加到通讯录")
    expect("its colour", lcd.find(1004).textColor.components, (0.0, 122.0, 255.0, 1.0))
    process.runtime.forget()
    process.send(lcd, "touchesBegan:withEvent:", lcd, offer)
    expect_original_once(process, lcd, "touchesBegan:withEvent:", lcd, offer)
    expect("its colour, pressed", lcd.find(1004).textColor.components, (0.0, 73.0, 153.0, 1.0))


# The swipe menu


def swiped_row(process: Process) -> Any:
    """Returns a row with the delete button behind it."""
    cell = view(process, "PHRecentsCell", 0.0, 0.0, 320.0, 60.25)
    cell.call = process.new("PHRecentCall", destination=text(process, NUMBER))
    scroll = process.new("UITableViewCellScrollView")
    behind = view(process, "UITableViewCellDeleteConfirmationView", 238.0, 0.0, 82.0, 60.25)
    delete = view(process, "UITableViewCellDeleteConfirmationButton", 0.0, 0.0, 82.0, 60.25)
    cell.add(scroll)
    scroll.add(behind)
    behind.add(delete)
    return cell


def swipe_menu(load: Load) -> None:
    """iOS 7.1: the menu's buttons while a row is swiped; the offset goes on unchanged."""
    process = started(load, World(version=7.1))
    marked(process, 5)
    cell = swiped_row(process)
    scroll = cell.children[0]
    process.send(scroll, "setContentOffset:", (12.5, -3.25))
    at = expect_original_once(process, scroll, "setContentOffset:", (12.5, -3.25))
    expect("where the original work stands", at, len(process.log) - 1)
    behind = scroll.children[0]
    expect_rect("the menu", behind, 238.0, 0.0, 144.0, 60.25)
    expect_rect("delete", behind.children[0], 96.0, 0.0, 48.0, 60.25)
    for tag, x, title, action in ((1012, 0.0, "纠错", "correct"), (1013, 48.0, "标记", "mark")):
        button = behind.find(tag)
        expect_rect(title, button, x, 0.0, 48.0, 59.75)
        expect("its title", button.titles, {0: title})
        owner = process.runtime.classes["ZQSystemCallHistoryViewHook"]
        expect("its action", button.actions, [(owner, f"{action}ButtonPressed", 1 << 6)])
    settle(process, cell, scroll)


def settle(process: Process, cell: Any, scroll: Any) -> None:
    """A released swipe stays open from half of the menu on."""
    format_ = "<" + "".join(process.runtime.abi.leaves("CGPoint"))
    selector = "scrollViewWillEndDragging:withVelocity:targetContentOffset:"
    for offset, target, right in (
        ((71.5, 2.5), (0.0, 2.5), 0.0),
        ((72.0, 2.5), (72.0, 2.5), 144.0),
    ):
        address = process.machine.allocate(16, struct.pack(format_, 9.0, 9.0))
        scroll.contentOffset, scroll.contentInset = offset, (1.0, 2.0, 0.0, 4.0)
        process.runtime.forget()
        process.send(cell, selector, scroll, (-1.5, 0.25), address)
        expect_original_once(process, cell, selector, scroll, (-1.5, 0.25), address)
        size = struct.calcsize(format_)
        found = struct.unpack(format_, process.machine.read(address, size))
        expect(f"where a swipe to {offset} ends", found, target)
        expect("its inset", scroll.contentInset, (1.0, 2.0, 0.0, 4.0)[:3] + (right or 4.0,))


# The detail header


def contact(process: Process, record: int) -> Any:
    """Returns a contact with one number."""
    value = process.new("ABPhoneValue", formattedStringValue=text(process, "010 6666 8888"))
    entry = process.new("ABPhoneValue", value=value)
    return process.new(
        "ABContact", recordID=record, phoneNumbers=process.new("NSArray", items=[entry])
    )


def header_height(load: Load) -> None:
    """A height of the library's own comes back in the result register, else the application's."""
    process = started(load, World(version=7.1))
    table = process.new("UITableView")
    selector = "tableView:heightForHeaderInSection:"
    for record, section, height in ((-1, 0, 71.0), (-1, 1, 33.25), (7, 0, 33.25)):
        controller = process.new("ABContactViewController")
        shown = contact(process, record)
        controller.contactView = process.new("ABContactView", contact=shown)
        controller.set_variable("_contact", shown)
        process.runtime.forget()
        expect("the height", process.send(controller, selector, table, section), height)
        if height != 71.0:
            expect_original_once(process, controller, selector, table, section)
        header = process.send(controller, "tableView:viewForHeaderInSection:", table, section)
        if height == 71.0:
            expect_rect("the header's view", header, 0.0, 0.0, 320.0, 71.0)
        else:
            expect("the header's view", header, table)


def detail_header(load: Load) -> None:
    """The header of a marked number: a line in two colours, three buttons, the rest moved down."""
    process = started(load, World(version=7.1))
    marked(process, 12)
    header = process.new("ABContactHeaderView")
    stranger = contact(process, -1)
    controller = process.new("ABContactViewController")
    controller.contactView = process.new("ABContactView", contact=stranger)
    controller.set_variable("_contact", stranger)
    process.send(controller, "tableView:heightForHeaderInSection:", None, 0)
    parts = {
        name: view(process, "UILabel", 15.0, 20.5, 290.0, 21.0) for name in header.variables[1:]
    }
    for name, part in parts.items():
        header.set_variable(name, part)
    header.set_variable("_contact", stranger)
    process.send(header, "layoutSubviews")
    expect_rect("the name", parts["_nameLabel"], 15.0, 53.0, 290.0, 21.0)
    expect_rect("what follows", parts["_personHeaderView"], 15.0, 167.0, 290.0, 21.0)
    line = header.find(1001)
    expect_rect("the line", line, 35.0, 85.0, 272.0, 13.0)
    painted = line.attributedText
    expect("its text", painted.text, "推销 | 12位用户标记")
    expect(
        "its colours",
        [(n, s) for n, _, s in painted.attributes],
        [("NSColor", (0, 3)), ("NSColor", (3, 9))],
    )
    buttons = {c.frame: c for c in header.children if c.objc_class.name == "ZQGroupButton"}
    frames = [(x, 112.0, 90.0, 44.0) for x in (35.0, 126.0, 217.0)]
    expect("the buttons", sorted(buttons), frames)
    for frame, (part, caps) in zip(
        frames,
        (("left", (4.0, 5.0, 4.0, 0.0)), ("middle", (0.0,) * 4), ("right", (4.0, 0.0, 4.0, 5.0))),
    ):
        button = buttons[frame]
        file = f"/resources/btn_{part}_in_systemCallHistoryDetailsView.png"
        expect("its picture", button.backgrounds[0], (file, caps))
        expect_rect("its icon", button.children[0], 22.0, 15.0, 14.0, 14.0)


SCENARIOS = [
    Scenario("dialer, iOS 7.1: CGRect and CGSize in, the row's frames out", dialer_row),
    Scenario("dialer, iOS 7.0: separator, offer and its colours in doubles", dialer_offer),
    Scenario("swipe menu: CGPoint by value and by address, insets, buttons", swipe_menu),
    Scenario("detail header: its height in the result register", header_height),
    Scenario("detail header: line in two colours, buttons, four-number insets", detail_header),
]
