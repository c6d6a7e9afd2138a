// A recents row with its line about the number.
#include "recents/cell.hpp"

#include "identity/companion.hpp"
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

struct RowText {
    NSString text;
    bool isOneOfSeveralNumbers = false;
};

RowText textOf(RecentCall call) {
    if (!call.isOfContact()) {
        auto *const hook = ZQSystemCallHistoryViewHook::currentHook();
        return {.text = hook ? hook->getInfo(call) : NSString()};
    }
    if (contactHasMoreThanOneNumber(call)) {
        return {.text = numberWithArea(call.number()), .isOneOfSeveralNumbers = true};
    }
    return {};
}

CGFloat widthOfDate(PHRecentsDateLabel label) {
    NSString text = label.text();
    if (const NSString designator = label.timeDesignator(); designator.length() != 0) {
        text = format<"%@ %@">(designator, text);
    }
    return ZQMathUtil::getCeilCGFloat(lineSize(text, label.font()).width);
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
        addButtonMenu(cell);
    }
    const objc::AutoreleasePool pool;
    const UIView content = cell.contentView();
    const auto [text, isOneOfSeveralNumbers] = textOf(call);
    const bool hasText = text.length() != 0;
    CGRect lineFrame = rowLine(0);
    lineFrame.size.height = 0;
    CGFloat textWidth = 0;
    if (hasText) {
        lineFrame = rowLine(rowLineWidth(widthOfDate(cell.dateLabel())));
        textWidth = ZQMathUtil::getCeilCGFloat(
            boundingWidth(text, callerLabel.font(), lineFrame.size,
                          kUsesLineFragmentOrigin | kTruncatesLastVisibleLine));
    }

    auto line = content.viewWithTag(kLineTag).as<UILabel>();
    if (!line) {
        line = addLine(content, callerLabel);
    }
    if (hasText || isOneOfSeveralNumbers) {
        callerLabel.setText(nullptr);
        show(line, content, lineFrame);
        line.setText(text);
    } else {
        line.setHidden(true);
    }

    // The whole cell is searched for the icon.
    UIView icon = cell.viewWithTag(kIconTag);
    if (!icon) {
        icon = addIcon(content);
    }
    if (hasText) {
        show(icon, content, rowIcon(textWidth));
    } else {
        icon.setHidden(true);
    }
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
