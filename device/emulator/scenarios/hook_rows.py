"""Which methods are replaced on which system, in order: class, selector, exported replacement."""

Row = tuple[str, str, str]


def rows(table: str) -> list[Row]:
    """Returns a table's rows; without a third word a replacement is named after the selector."""
    found = []
    for line in table.strip().splitlines():
        class_name, selector, *given = line.split()
        name = given[0] if given else selector.replace(":", "_")
        found.append((class_name, selector, f"_replace_{class_name}_{name}"))
    return found


DIALER = rows(
    """
    DialerController viewWillAppear: viewWillAppear
    DialerController viewWillDisappear: viewWillDisappear
    DialerController newPersonViewController:didCompleteWithNewPerson:
    PHHandsetDialerLCDView setName:numberLabel:
    PHHandsetDialerLCDView touchesBegan:withEvent:
    PHHandsetDialerLCDView touchesCancelled:withEvent:
    """
)
IN_CALL = rows(
    """
    TUTelephonyCall initWithCall:
    TUTelephonyCall dealloc
    InCallLCDField layoutSubviews
    InCallLCDView layoutSubviews
    InCallController _callStatusChangedNotification:
    """
)
IN_CALL_70 = rows(
    """
    TPLCDTextView setCenterText:
    TPWallpaperView setContactImage:animated:
    """
)
IN_CALL_SHORT_SCREEN = rows("TPLCDTextView setLCDTextFont:")
RECENTS_80 = rows(
    """
    PHRecentsViewController viewWillAppear:
    PHRecentsCell layoutSubviews
    """
)
RECENTS_7 = rows(
    """
    PhoneViewController viewWillAppear:
    PHRecentsViewController showCallDetail:animate:
    PHRecentsCell layoutSubviews
    ABContactViewController tableView:heightForHeaderInSection:
    ABContactViewController tableView:viewForHeaderInSection:
    ABContactHeaderView layoutSubviews
    PHRecentsCell setEditing:animated:
    PHRecentsViewController setEditing:animated:
    PHRecentsCell scrollViewWillEndDragging:withVelocity:targetContentOffset:
    UITableViewCellScrollView setContentOffset:
    """
)


def expected(version: float, short_screen: bool) -> list[Row]:
    """Returns the rows of a system: recents first, then the in-call screen, then the dialer."""
    if version >= 8.0:
        return RECENTS_80
    if version < 7.0:
        return DIALER
    in_call = IN_CALL + (IN_CALL_70 if version < 7.1 else [])
    return RECENTS_7 + in_call + (IN_CALL_SHORT_SCREEN if short_screen else []) + DIALER
