// Two screens and two displays share one plan: the display under the status bar, two rows of three
// buttons 95 points apart, and the red key at the bottom.
#include "phone/incall/InCallGeometry.hpp"

#include "uikit/Device.hpp"

namespace phone {
namespace {

constexpr CGFloat kWidth = 320;
constexpr CGFloat kMargin = 20;
constexpr CGFloat kStatusBarHeight = 20;
constexpr CGFloat kColumnPitch = 95;
constexpr int kColumns = 3;
constexpr int kRows = 2;

constexpr CGFloat columnCentre(int column) {
    return kWidth / 2 + static_cast<CGFloat>(column - 1) * kColumnPitch;
}

/// What differs between the screens.
struct Plan {
    CGFloat buttonsY;
    CGFloat buttonDiameter;
    CGFloat rowPitch;
    CGFloat roundKeyY;
    CGFloat barY;
    CGFloat barHeight;
};

constexpr Plan kTall = {168, 76, 112, 448, 484, 52};
constexpr Plan kShort = {136, 64, 98, 370, 408, 46};

const Plan &plan(const InCallLook &look) { return look.isTall() ? kTall : kShort; }

/// What differs between the displays, each on a tall and on a short screen. Tops and sizes of the
/// parts of a single row; the text is drawn at the top of its frame.
struct DisplayPlan {
    CGFloat textY, textHeight;
    CGFloat labelY, labelHeight;
    CGFloat imageY, imageSide;
    CGFloat textPoints, smallTextPoints, labelPoints;
};

// No source tells a label's height. On 7.1 the add-on's icon stands in the middle of a contact's,
// which makes it 21 or 15; a field's for anybody else ends where the add-on's line begins, 17 or 12
// points below its top.
constexpr DisplayPlan kTallView = {10, 40, 53, 21, 12, 74, 32, 20, 16};
constexpr DisplayPlan kShortView = {8, 36, 46, 17, 5, 74, 28, 18, 14};
constexpr DisplayPlan kTallField = {19, 30, 51, 17, 20, 74, 24, 18, 14};
constexpr DisplayPlan kShortField = {13, 22, 40, 12, 15, 67, 18, 18, 12};

const DisplayPlan &plan(const DisplayLook &look) {
    if (look.display == Display::View) {
        return look.isTall ? kTallView : kShortView;
    }
    return look.isTall ? kTallField : kShortField;
}

/// Name at the left, how the call stands at the right, both rows alike.
DisplayFrames twoRows(bool isTall) {
    const CGFloat points = isTall ? 22 : 20;
    const CGFloat lineHeight = points * CGFloat{1.25};
    const CGFloat labelHeight = 20;
    constexpr CGFloat kNameWidth = 185;
    constexpr CGFloat kLabelX = 215;
    const CGFloat labelWidth = kWidth - kMargin - kLabelX;
    const CGFloat tops[] = {14, isTall ? CGFloat{52} : CGFloat{46}};
    const auto name = [&](CGFloat y) { return rect(kMargin, y, kNameWidth, lineHeight); };
    const auto label = [&](CGFloat y) {
        return rect(kLabelX, y + (lineHeight - labelHeight) / 2, labelWidth, labelHeight);
    };
    return {name(tops[0]),
            label(tops[0]),
            name(tops[1]),
            label(tops[1]),
            {},
            points,
            points,
            isTall ? CGFloat{15} : CGFloat{14}};
}

}  // namespace

InCallLook currentInCallLook() {
    const sim::Device &device = sim::Device::current();
    return {device.screen.height, device.isAtLeast(7, 1)};
}

Display usualDisplay() {
    return sim::Device::current().isAtLeast(7, 1) ? Display::Field : Display::View;
}

InCallFrames inCallFrames(const InCallLook &look, Display display) {
    const Plan &p = plan(look);
    constexpr CGFloat kGap = 10;
    constexpr CGFloat kBarWidth = kWidth - 2 * kMargin;
    constexpr CGFloat kHalfBar = (kBarWidth - kGap) / 2;
    const auto round = [&](int column) {
        return rect(columnCentre(column) - p.buttonDiameter / 2, p.roundKeyY, p.buttonDiameter,
                    p.buttonDiameter);
    };
    const auto bar = [&](CGFloat x, CGFloat width) { return rect(x, p.barY, width, p.barHeight); };

    InCallFrames frames{};
    frames.statusBar = rect(0, 0, kWidth, kStatusBarHeight);
    frames.display = rect(0, kStatusBarHeight, kWidth, display == Display::View ? 96 : 100);
    frames.buttons = rect(0, p.buttonsY, kWidth, static_cast<CGFloat>(kRows) * p.rowPitch);
    frames.endKey = look.hasRoundKeys ? round(1) : bar(kMargin, kBarWidth);
    frames.declineKey = look.hasRoundKeys ? round(0) : bar(kMargin, kHalfBar);
    frames.answerKey = look.hasRoundKeys ? round(2) : bar(kMargin + kHalfBar + kGap, kHalfBar);
    return frames;
}

CGRect inCallButtonFrame(const InCallLook &look, int index) {
    const Plan &p = plan(look);
    const int row = index / kColumns;
    return rect(columnCentre(index % kColumns) - p.buttonDiameter / 2,
                static_cast<CGFloat>(row) * p.rowPitch, p.buttonDiameter, p.buttonDiameter);
}

DisplayFrames displayFrames(const DisplayLook &look) {
    if (look.hasTwoRows) {
        return twoRows(look.isTall);
    }
    constexpr CGFloat kImageRight = 300;
    constexpr CGFloat kTextBesideImage = 190;
    const CGFloat contactsLabel = look.hasImage || look.isTall ? 21 : 15;
    const DisplayPlan &p = plan(look);
    const CGFloat width = look.hasImage ? kTextBesideImage : kWidth - 2 * kMargin;
    DisplayFrames frames{};
    frames.text = rect(kMargin, p.textY, width, p.textHeight);
    const CGFloat labelHeight = look.hasImage || look.isContact ? contactsLabel : p.labelHeight;
    frames.label = rect(kMargin, p.labelY + (p.labelHeight - labelHeight) / 2, width, labelHeight);
    frames.image = rect(kImageRight - p.imageSide, p.imageY, p.imageSide, p.imageSide);
    frames.textPoints = p.textPoints;
    frames.smallTextPoints = p.smallTextPoints;
    frames.labelPoints = p.labelPoints;
    return frames;
}

}  // namespace phone
