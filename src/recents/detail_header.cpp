// The header of a call's details.
#include "recents/detail_header.hpp"

#include "identity/companion.hpp"
#include "objc/silently.hpp"
#include "platform/format.hpp"
#include "recents/HeaderViews.hpp"
#include "recents/actions.hpp"
#include "recents/geometry.hpp"
#include "recents/history_description.hpp"
#include "recents/lookup.hpp"
#include "recents/lookup_context.hpp"

namespace recents {
namespace {

constinit bool g_isInternationalNumber = false;
// Holds a reference; an Owned here would ask for code at load.
constinit UIImage g_recordIconImage;

bool isFrom80() { return ZQPhoneUtil::isLaterThanIOSVersion(8.0, true); }

bool isForeign(ZQNumberIdentity identity) { return identity.type() == IdentityKind::Foreign; }

NSString firstNumber(ABContact contact) {
    const NSArray numbers = contact.phoneNumbers();
    if (numbers.count() == 0) {
        return nullptr;
    }
    const auto value = objc::send<NSObject()>(numbers.objectAtIndex(0), "value"_sel);
    return objc::send<NSString()>(value, "formattedStringValue"_sel);
}

/// What stands above the buttons, and in which form.
struct HeaderText {
    NSString info;
    NSString tagline;  // the Phone application's own; nil where it is not to be repeated
};

void showText(const HeaderText &text, bool inTwoTones, UILabel label) {
    label.setHidden(false);
    label.setText(text.tagline ? format<"%@  %@">(text.tagline, text.info) : text.info);
    // A foreign number's warning has a label of its own.
    if (inTwoTones) {
        if (const auto attributed = twoToned(text.info)) {
            label.setAttributedText(attributed.get());
        }
    }
}

NSString taglineToRepeat(UILabel label, bool from80) {
    if (from80 && !g_isInternationalNumber) {
        return nullptr;
    }
    const NSString tagline = label.text();
    return tagline.length() != 0 ? tagline : nullptr;
}

/// What is known of the number, if there is one, into the header's views and below them.
void fill(ABContactHeaderView header, const HeaderViews &views, bool from80) {
    if (phonePureNumber().length() == 0) {
        return;
    }
    const ZQNumberIdentity identity = identityOf(phonePureNumber());
    const NSString info = detailLine(phonePureNumber(), identity);
    const OfferedActions offered = offeredActions(identity);
    const HeaderText text{.info = info, .tagline = taglineToRepeat(header.taglineLabel(), from80)};
    const HeaderPlaces places = place(Header{
        .from80 = from80,
        .screenWidth = UIScreen::mainScreen().bounds().size.width,
        .productHeight = views.product().frame().size.height,
        .hasInfo = static_cast<bool>(info),
        .isForeign = isForeign(identity),
        .hasTagline = static_cast<bool>(text.tagline),
        .hasCorrect = offered.correct,
        .hasMark = offered.mark,
    });
    showText(text, !isForeign(identity), views.description());
    views.description().setFrame(places.description);
    if (isForeign(identity)) {
        views.warning().setFrame(places.warning);
        views.warning().setHidden(false);
    }
    views.showButtons(offered, places);

    // Last, when nothing can fail any more.
    const UIView person = header.personHeaderView();
    CGRect personFrame = person.frame();
    personFrame.origin.y = places.personY;
    person.setFrame(personFrame);
}

}  // namespace

bool hasHeader(ABContactViewController controller, NSInteger section) {
    return controller.shownContact().isStranger() && section == 0;
}

void updatePhoneNumber(ABContactViewController controller) {
    const ABContact contact = controller.contact();
    if (contact.isStranger() && contact.phoneNumbers().count() != 0) {
        updatePhoneNumberFromContact(contact);
    }
}

void updatePhoneNumberFromContact(ABContact contact) {
    const auto parsed = ZQPhoneNumber::parsed(firstNumber(contact));
    const NSString pure = parsed->pureNumber();
    if (!pure.isEqualToString(phonePureNumber())) {
        constexpr int32_t kInternational = 6;
        g_isInternationalNumber = parsed->type() == kInternational;
        setPhonePureNumber(pure);
    }
}

CGFloat headerViewHeight() {
    const ZQNumberIdentity identity = identityOf(phonePureNumber());
    const NSString info = detailLine(phonePureNumber(), identity);
    return headerHeight(info.length() != 0, isForeign(identity), isFrom80());
}

UIView makeHeaderSpacer() {
    constexpr CGFloat kWidth = 320;  // of every screen that these systems run on
    const UIView spacer = withFrame<UIView>(rect(0, 0, kWidth, headerViewHeight())).autorelease();
    spacer.setBackgroundColor(UIColor::clearColor());
    return spacer;
}

void layOutHeader(ABContactHeaderView header) {
    if (header.isEditing()) {
        return;
    }
    const ABContact contact = header.contact();
    if (!contact.isStranger() || contact.phoneNumbers().count() == 0) {
        return;
    }
    addNumberInfo(header, contact);
    header.layoutSublayers();
}

void addNumberInfo(ABContactHeaderView header, ABContact /*contact*/) {
    const bool from80 = isFrom80();
    const UILabel tagline = header.taglineLabel();
    tagline.setHidden(true);
    const UILabel name = header.nameLabel();
    const CGRect systemsFrame = name.frame();
    CGRect nameFrame = systemsFrame;
    nameFrame.origin.y = 53;
    name.setFrame(nameFrame);

    if (const HeaderViews views = HeaderViews::find(header)) {
        fill(header, views, from80);
        return;
    }
    // A first pass that fails is undone, for no later one would reach its buttons.
    if (!objc::silently([&] { fill(header, HeaderViews::create(header, from80), from80); })) {
        HeaderViews::remove(header);
        tagline.setHidden(false);
        name.setFrame(systemsFrame);
    }
}

UIImage recordIcon() {
    if (!g_recordIconImage) {
        const UIImage loaded = resourceImage("icon_zqrLogo_in_systemCallHistoryDetailsView.png"_ns);
        g_recordIconImage = objc::Owned<UIImage>::share(loaded).leak();
    }
    return g_recordIconImage;
}

}  // namespace recents
