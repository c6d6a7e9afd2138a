// A recents row with its line about the number.
#include "recents/Cell.hpp"

#include "companion/Interface.hpp"
#include "objc/Silently.hpp"
#include "platform/Format.hpp"
#include "platform/LayoutPass.hpp"
#include "platform/PerView.hpp"
#include "platform/TextWidths.hpp"
#include "recents/AddressBook.hpp"
#include "recents/Geometry.hpp"
#include "recents/RowTexts.hpp"
#include "recents/SwipeMenu.hpp"

namespace recents {
namespace {

enum CellTag : NSInteger { kIconTag = 2533, kLineTag = 2534 };

/// Of a contact with several numbers: which of them it was, and from where.
NSString numberWithArea(NSString number) {
    const NSString area = ZQPhoneNumber::areaNameOfNumber(ZQPhoneNumber::pureNumberOf(number));
    return format<"%@  %@">(ZQPhoneNumber::getFormattedNumberWithNumber(number),
                            area.length() != 0 ? area : "未知"_ns);
}

objc::Owned<NSString> textOf(RecentCall call) {
    const bool from80 = ios::isFrom(8.0);
    if (!call.isOfContact(from80)) {
        RowTexts *const texts = RowTexts::shared();
        return texts ? texts->textOf(call, from80) : objc::Owned<NSString>();
    }
    // A contact's only number needs no line.
    return objc::Owned<NSString>::share(
        contactHasMoreThanOneNumber(call) ? numberWithArea(call.number(from80)) : nullptr);
}

CGFloat widthOfDate(PHRecentsDateLabel label) {
    NSString text = label.text();
    if (const NSString designator = label.timeDesignator(); designator.length() != 0) {
        text = format<"%@ %@">(designator, text);
    }
    return ZQMathUtil::getCeilCGFloat(rememberedLineWidth(text, label.font()));
}

struct Places {
    CGRect line, icon;
};

Places placesOf(NSString text, PHRecentsDateLabel date, UIFont font) {
    const CGRect line = rowLine(rowLineWidth(widthOfDate(date)));
    const CGFloat width = rememberedBoundingWidth(
        text, font, line.size, kUsesLineFragmentOrigin | kTruncatesLastVisibleLine);
    return {.line = line, .icon = rowIcon(ZQMathUtil::getCeilCGFloat(width))};
}

/// The label's text that our line took the place of. The Phone application may write it only once,
/// when the row gets its call, so it is kept for when our line goes again.
struct Replaced {
    id call = nullptr;  // compared, never used
    objc::Owned<NSString> text;
};

/// By our line: a new line means a new row, where nothing was replaced yet.
auto &replacedTexts() {
    static auto &g_texts = *new PerView<Replaced, 32>;
    return g_texts;
}

void emptyLabel(UILabel label, UIView line, RecentCall call) {
    if (const NSString text = label.text(); text.length() != 0) {
        replacedTexts().remember(line, {.call = call, .text = text.copy()});
        label.setText(nullptr);
    }
}

void refillLabel(UILabel label, UIView line, RecentCall call) {
    if (const Replaced *const replaced = replacedTexts().find(line)) {
        if (replaced->call == call.get() && label.text().length() == 0) {
            label.setText(replaced->text);
        }
        replacedTexts().forget(line);
    }
}

/// The row's line, added where it is missing; nil where the content view does not keep it.
UILabel findLine(UIView content, UILabel model) {
    if (const UIView found = content.viewWithTag(kLineTag)) {
        return found.as<UILabel>();
    }
    const auto line = withFrame<UILabel>({});
    line->setBackgroundColor(UIColor::clearColor());
    line->setFont(model.font());
    line->setTextColor(model.textColor());
    replacedTexts().forget(line);
    addTagged(content, line, kLineTag);
    return content.viewWithTag(kLineTag).as<UILabel>();
}

/// The whole cell is searched for it.
UIView findIcon(PHRecentsCell cell, UIView content) {
    if (const UIView found = cell.viewWithTag(kIconTag)) {
        return found;
    }
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
    if (ios::isBefore(7.1)) {
        objc::silently([&] { addButtonMenu(cell); });  // the line needs no menu
    }
    const objc::AutoreleasePool pool;
    // The row may be given another call while the companion is asked.
    const auto call = objc::Owned<RecentCall>::share(RecentCall(cell.call()));
    const auto text = textOf(call);
    if (LayoutPass::isOvertaken(cell)) {
        return;
    }
    const UILabel callerLabel = cell.callerLabel();
    const UIView content = cell.contentView();
    const UILabel line = findLine(content, callerLabel);
    if (!line) {  // no place for it
        restoreCell(cell);
        return;
    }
    const UIView icon = findIcon(cell, content);
    if (text->length() == 0) {
        line.setHidden(true);
        icon.setHidden(true);
        refillLabel(callerLabel, line, call);
        return;
    }
    const Places places = placesOf(text, cell.dateLabel(), callerLabel.font());
    show(line, content, places.line);
    setTextIfNew(line, text);
    show(icon, content, places.icon);
    // Last, so that whatever raises before leaves the Phone application's line.
    emptyLabel(callerLabel, line, call);
}

void restoreCell(PHRecentsCell cell) {
    const UIView line = cell.viewWithTag(kLineTag);
    line.setHidden(true);
    cell.viewWithTag(kIconTag).setHidden(true);
    refillLabel(cell.callerLabel(), line, RecentCall(cell.call()));
}

UIView subviewWithTag(UIView view, NSInteger tag) {
    for (const UIView subview : view.subviews()) {
        if (const UIView found = subview.viewWithTag(tag)) {
            return found;
        }
    }
    return nullptr;
}

}  // namespace recents
