"""The Phone application's classes in the pretend process: what the library hooks and reads. Their
own work is nothing, but the log shows that it ran."""

from typing import Any

from emulator.foundation import NSObject
from emulator.objects import Instance, answer, message, prop
from emulator.uikit import UILabel, UIScrollView, UIView


def work(selector: str, types: str) -> Any:
    """Declares a method whose own work does not matter."""
    return message(selector, types)(lambda self, *values: None)


class DialerController(NSObject):
    """The dialer."""

    view = prop("@")
    appear = work("viewWillAppear:", "v@:c")
    disappear = work("viewWillDisappear:", "v@:c")
    new_person = work("newPersonViewController:didCompleteWithNewPerson:", "v@:@p")


class DialerNameLine(UIView):
    """The dialer's line with a contact's name."""

    addToContactsLabel = prop("@")


class PHHandsetDialerLCDView(UIView):
    """The dialer's display."""

    numberLabel = prop("@")
    nameAndLabelView = prop("@")
    set_name = work("setName:numberLabel:", "v@:@@")
    touches_began = work("touchesBegan:withEvent:", "v@:@@")
    touches_cancelled = work("touchesCancelled:withEvent:", "v@:@@")


class TUTelephonyCall(NSObject):
    """A call."""

    status = prop("i", 1)
    abUID = prop("i", -1)
    isOutgoing = prop("c", False)
    destinationID = prop("@")

    init_call = answer("initWithCall:", "@@:@", lambda self, call: self)


class InCallLCDView(UIView):
    """The in-call display with pictures."""

    variables = ("_textView", "_labelView", "_imageView")


class InCallLCDField(UIView):
    """The in-call display with a content view."""

    variables = ("_textView", "_labelView", "_imageView", "_contentView")


class InCallController(NSObject):
    """The in-call screen."""

    status_changed = work("_callStatusChangedNotification:", "v@:@")


class NSNotification(NSObject):
    """A notice without content."""

    userInfo = prop("@")


class TPLCDTextView(UIView):
    """The in-call screen's large text."""

    set_center = work("setCenterText:", "v@:c")
    set_font = work("setLCDTextFont:", "v@:@")


class TPLCDLabelView(UIView):
    """The in-call screen's small text."""

    variables = ("_text", "_fontSize")
    textRect = prop("{CGRect}", (0.0, 0.0, 0.0, 0.0))
    set_text = answer("setText:", "v@:@", lambda self, text: self.set_variable("_text", text))


class TPWallpaperView(UIView):
    """What stands behind the in-call screen."""

    set_image = work("setContactImage:animated:", "v@:@c")


class PhoneViewController(NSObject):
    """The recents screen of iOS 7."""

    variables = ("_table",)
    appear = work("viewWillAppear:", "v@:c")


class PHRecentsViewController(NSObject):
    """The list of recent calls."""

    variables = ("_table",)
    appear = work("viewWillAppear:", "v@:c")
    set_editing = work("setEditing:animated:", "v@:cc")

    show_detail = answer("showCallDetail:animate:", "@@:@c", lambda self, call, animate: call)


class PHRecentCall(NSObject):
    """A recent call, as both systems answer for it."""

    date = prop("@")
    callerId = prop("@")
    destination = prop("@")
    callStatus = prop("i", 1)
    type = prop("i", 1)
    addressBookRecordId = prop("i", 0)
    addressBookRecord = prop("p", 0)


class PHRecentsDateLabel(UILabel):
    """A call's time."""

    timeDesignator = prop("@")


class PHRecentsCell(UIView):
    """A row of recent calls."""

    variables = ("_callerLabelLabel", "_callerDateLabel")
    call = prop("@")
    contentView = prop("@")
    set_editing = work("setEditing:animated:", "v@:cc")
    end_dragging = work(
        "scrollViewWillEndDragging:withVelocity:targetContentOffset:", "v@:@{CGPoint}p"
    )


class UITableViewCellScrollView(UIScrollView):
    """What moves in a row."""


class UITableViewCellDeleteConfirmationView(UIView):
    """What lies behind a row that has moved."""


class UITableViewCellDeleteConfirmationButton(UIView):
    """The delete button behind a row."""


class ABContact(NSObject):
    """A contact; a stranger has a negative record."""

    recordID = prop("i", -1)
    phoneNumbers = prop("@")
    values: Instance | None = None


class ABPhoneValue(NSObject):
    """A number of a contact."""

    value = prop("@")
    formattedStringValue = prop("@")


class ABContactView(NSObject):
    """The view of a contact."""

    contact = prop("@")


class ABContactViewController(NSObject):
    """The details of a contact; heights of its own are 33 points."""

    variables = ("_contact",)
    contactView = prop("@")

    @message("tableView:heightForHeaderInSection:", "g@:@l")
    def header_height(self: Instance, table: Any, section: int) -> float:
        return 33.25

    @message("tableView:viewForHeaderInSection:", "@@:@l")
    def header_view(self: Instance, table: Any, section: int) -> Any:
        return table


class ABContactHeaderView(UIView):
    """The top of a contact's details."""

    variables = ("_contact", "_taglineLabel", "_personHeaderView", "_nameLabel")
    isEditing = prop("c", False)


HOOKED: list[type[Instance]] = [
    DialerController,
    PHHandsetDialerLCDView,
    TUTelephonyCall,
    InCallLCDField,
    InCallLCDView,
    InCallController,
    TPLCDTextView,
    TPWallpaperView,
    PHRecentsViewController,
    PHRecentsCell,
    PhoneViewController,
    ABContactViewController,
    ABContactHeaderView,
    UITableViewCellScrollView,
]
PARTS: list[type[Instance]] = [
    TPLCDLabelView,
    DialerNameLine,
    NSNotification,
    PHRecentCall,
    PHRecentsDateLabel,
    UITableViewCellDeleteConfirmationView,
    UITableViewCellDeleteConfirmationButton,
    ABContact,
    ABPhoneValue,
    ABContactView,
]
