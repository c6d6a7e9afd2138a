// A recents row with its line about the number.
#include "recents/cell.hpp"

#include "identity/companion.hpp"
#include "objc/silently.hpp"
#include "platform/format.hpp"
#include "recents/ZQSystemCallHistoryViewHook.hpp"
#include "recents/address_book.hpp"
#include "recents/geometry.hpp"
#include "recents/swipe_menu.hpp"

namespace recents {
namespace {

enum Tag : NSInteger { kIconTag = 2533, kLineTag = 2534 };

/// Of a contact with several numbers: which of them it was, and from where.
NSString numberWithArea(NSString number) {
    const auto parsed = ZQPhoneNumber::parsed(number);
    const NSString area = ZQPhoneNumber::areaNameOfNumber(parsed->pureNumber());
    return format<"%@  %@">(ZQPhoneNumber::getFormattedNumberWithNumber(number),
                            area.length() != 0 ? area : "未知"_ns);
}

NSString textOf(RecentCall call) {
    if (!call.isOfContact()) {
        auto *const hook = ZQSystemCallHistoryViewHook::currentHook();
        return hook ? hook->getInfo(call) : NSString();
    }
    // A contact's only number needs no line.
    return contactHasMoreThanOneNumber(call) ? numberWithArea(call.number()) : nullptr;
}

CGFloat widthOfDate(PHRecentsDateLabel label) {
    NSString text = label.text();
    if (const NSString designator = label.timeDesignator(); designator.length() != 0) {
        text = format<"%@ %@">(designator, text);
    }
    return ZQMathUtil::getCeilCGFloat(lineSize(text, label.font()).width);
}

struct Places {
    CGRect line, icon;
};

Places placesOf(NSString text, PHRecentsDateLabel date, UIFont font) {
    const CGRect line = rowLine(rowLineWidth(widthOfDate(date)));
    const CGFloat width =
        boundingWidth(text, font, line.size, kUsesLineFragmentOrigin | kTruncatesLastVisibleLine);
    return {.line = line, .icon = rowIcon(ZQMathUtil::getCeilCGFloat(width))};
}

UILabel addLine(UIView content, UILabel model) {
    const UILabel line = withFrame<UILabel>({}).autorelease();
    line.setBackgroundColor(UIColor::clearColor());
    line.setFont(model.font());
    line.setTextColor(model.textColor());
    addTagged(content, line, kLineTag);
    return line;
}

UIView addIcon(UIView content) {
    const UIImageView icon = withFrame<UIImageView>({}).autorelease();
    icon.setImage(resourceImage("record_icon.png"_ns));
    addTagged(content, icon, kIconTag);
    return icon;
}

void show(UIView view, UIView content, CGRect frame) {
    view.setHidden(false);
    content.bringSubviewToFront(view);
    view.setFrame(frame);
}

}  // namespace

void layOutCell(PHRecentsCell cell) {
    const UILabel callerLabel = cell.callerLabel();
    const RecentCall call(cell.call());
    if (ZQPhoneUtil::isEalierThanIOSVersion(7.1, false)) {
        objc::silently([&] { addButtonMenu(cell); });  // the line needs no menu
    }
    const objc::AutoreleasePool pool;
    const UIView content = cell.contentView();
    const NSString text = textOf(call);
    const bool hasText = text.length() != 0;
    const Places places = hasText ? placesOf(text, cell.dateLabel(), callerLabel.font()) : Places{};

    auto line = content.viewWithTag(kLineTag).as<UILabel>();
    if (!line) {
        line = addLine(content, callerLabel);
    }
    // The whole cell is searched for the icon.
    UIView icon = cell.viewWithTag(kIconTag);
    if (!icon) {
        icon = addIcon(content);
    }
    if (!hasText) {
        line.setHidden(true);
        icon.setHidden(true);
        return;
    }
    show(line, content, places.line);
    line.setText(text);
    show(icon, content, places.icon);
    // Last, so that whatever raises before leaves the row as the Phone application made it.
    callerLabel.setText(nullptr);
}

void hideLine(PHRecentsCell cell) {
    for (const Tag tag : {kLineTag, kIconTag}) {
        cell.viewWithTag(tag).setHidden(true);
    }
}

UIView subviewWithTag(UIView view, NSInteger tag) {
    const NSArray subviews = view.subviews();
    for (NSUInteger i = 0, count = subviews.count(); i < count; ++i) {
        if (const UIView found = subviews.objectAtIndex(i).as<UIView>().viewWithTag(tag)) {
            return found;
        }
    }
    return nullptr;
}

}  // namespace recents
