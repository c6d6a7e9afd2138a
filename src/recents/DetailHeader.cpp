// The header of a call's details.
#include "recents/DetailHeader.hpp"

#include <optional>

#include "companion/Interface.hpp"
#include "objc/Silently.hpp"
#include "platform/Format.hpp"
#include "platform/LayoutPass.hpp"
#include "platform/PerView.hpp"
#include "recents/Actions.hpp"
#include "recents/Geometry.hpp"
#include "recents/HeaderViews.hpp"
#include "recents/HistoryDescription.hpp"
#include "recents/Lookup.hpp"
#include "recents/LookupContext.hpp"

namespace recents {
namespace {

constinit bool g_isInternationalNumber = false;
NSString firstNumber(ABContact contact) {
    const NSArray numbers = contact.phoneNumbers();
    if (numbers.count() == 0) {
        return nullptr;
    }
    const auto value = objc::send<NSObject()>(numbers.objectAtIndex(0), "value"_sel);
    return objc::send<NSString()>(value, "formattedStringValue"_sel);
}

/// The lookup context's number and what is known of it.
struct KnownNumber {
    objc::Owned<NSString> number;
    objc::Owned<ZQNumberIdentity> identity;
    objc::Owned<NSString> info;
    bool isForeign = false;
};

KnownNumber lookUp(objc::Owned<NSString> number) {
    auto identity = identityOf(number);
    auto info = detailLine(number, identity);
    const bool isForeign = identity->type() == IdentityKind::Foreign;
    return {std::move(number), std::move(identity), std::move(info), isForeign};
}

objc::Owned<NSString> taglineToRepeat(UILabel label, bool from80) {
    const bool isWanted = !from80 || g_isInternationalNumber;
    auto tagline = objc::Owned<NSString>::share(isWanted ? label.text() : nullptr);
    return tagline->length() != 0 ? std::move(tagline) : objc::Owned<NSString>();
}

void showText(NSString tagline, const KnownNumber &known, UILabel label) {
    label.setHidden(false);
    // A foreign number's warning has a label of its own.
    const auto toned =
        known.isForeign ? objc::Owned<NSMutableAttributedString>() : twoToned(known.info);
    const NSString text = tagline ? format<"%@  %@">(tagline, known.info.get()) : known.info.get();
    // A new text has the header laid out again, which would find a new text again.
    if (isSameText(toned ? toned->string() : text, label.text())) {
        return;
    }
    label.setText(text);
    if (toned) {
        label.setAttributedText(toned.get());
    }
}

void moveTo(UIView view, CGRect frame, CGFloat y) {
    frame.origin.y = y;
    view.setFrame(frame);
}

/// What a header shows of the lookup context's number.
struct Content {
    KnownNumber known;
    OfferedActions offered;
};

/// Empty without a number.
std::optional<Content> ask() {
    auto number = phonePureNumber();
    if (number->length() == 0) {
        return {};
    }
    KnownNumber known = lookUp(std::move(number));
    const OfferedActions offered = offeredActions(known.number, known.identity);
    return Content{std::move(known), offered};
}

/// The content into the header's views and below them.
void fill(ABContactHeaderView header, const HeaderViews &views, const Content &content,
          bool from80) {
    const auto &[known, offered] = content;
    const auto tagline = taglineToRepeat(header.taglineLabel(), from80);
    const HeaderPlaces places = place(Header{
        .from80 = from80,
        .screenWidth = UIScreen::mainScreen().bounds().size.width,
        .productHeight = views.product().frame().size.height,
        .hasInfo = static_cast<bool>(known.info),
        .isForeign = known.isForeign,
        .hasTagline = static_cast<bool>(tagline),
        .hasCorrect = offered.correct,
        .hasMark = offered.mark,
    });
    showText(tagline, known, views.description());
    views.description().setFrame(places.description);
    if (known.isForeign) {
        views.warning().setFrame(places.warning);
        views.warning().setHidden(false);
    }
    views.showButtons(offered, places);
    const UIView person = header.personHeaderView();
    moveTo(person, person.frame(), places.personY);
}

struct Placed {
    CGRect name, person, ourName, ourPerson;
};

/// Of the headers that were laid out last.
auto &placed() {
    static auto &g_placed = *new PerView<Placed, 8>;
    return g_placed;
}

/// The Phone application's own parts of a header, as it places them: what stands where we put it
/// last has not been placed anew since.
class TheirParts {
  public:
    explicit TheirParts(ABContactHeaderView header)
        : header_(header),
          name_(header.nameLabel().frame()),
          person_(header.personHeaderView().frame()) {
        if (const Placed *const before = placed().find(header)) {
            name_ = name_ == before->ourName ? before->name : name_;
            person_ = person_ == before->ourPerson ? before->person : person_;
        }
    }

    void rememberOurs() const {
        placed().remember(header_, {.name = name_,
                                    .person = person_,
                                    .ourName = header_.nameLabel().frame(),
                                    .ourPerson = header_.personHeaderView().frame()});
    }

    void restore() const {
        header_.taglineLabel().setHidden(false);
        header_.nameLabel().setFrame(name_);
        header_.personHeaderView().setFrame(person_);
        placed().forget(header_);
    }

  private:
    ABContactHeaderView header_;
    CGRect name_, person_;
};

void showInfo(ABContactHeaderView header) {
    const bool from80 = ios::isFrom(8.0);
    const auto content = ask();
    header.taglineLabel().setHidden(true);
    const UILabel name = header.nameLabel();
    moveTo(name, name.frame(), 53);
    HeaderViews views = HeaderViews::find(header);
    if (!views) {
        views = HeaderViews::create(header, from80);
    }
    if (content) {
        fill(header, views, *content, from80);
    }
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
    const KnownNumber known = lookUp(phonePureNumber());
    return headerHeight(known.info->length() != 0, known.isForeign, ios::isFrom(8.0));
}

UIView makeHeaderSpacer() {
    constexpr CGFloat kWidth = 320;  // of every screen that these systems run on
    const UIView spacer = withFrame<UIView>(rect(0, 0, kWidth, headerViewHeight())).autorelease();
    spacer.setBackgroundColor(UIColor::clearColor());
    return spacer;
}

void layOutHeader(ABContactHeaderView header, bool isOutermostPass) {
    if (header.isEditing()) {
        return;
    }
    const ABContact contact = header.contact();
    if (!contact.isStranger() || contact.phoneNumbers().count() == 0) {
        return;
    }
    addNumberInfo(header, contact);
    // The layers lay the header out again. Without this, Auto Layout on iOS 7 complains of the
    // views that came after its pass; from within that second pass it would never end.
    if (isOutermostPass) {
        header.layoutSublayers();
    }
}

void addNumberInfo(ABContactHeaderView header, ABContact /*contact*/) {
    const TheirParts theirs(header);
    if (objc::silently([&] { LayoutPass::untilCurrent(header, [&] { showInfo(header); }); })) {
        theirs.rememberOurs();
        return;
    }
    // All or nothing. The next pass makes the views anew: it could not reach the old buttons.
    objc::silently([&] { HeaderViews::remove(header); });
    objc::silently([&] { theirs.restore(); });
}

}  // namespace recents
