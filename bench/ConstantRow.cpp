// What rows ask is answered by methods that replace those of the simulator and the stub.
#include "ConstantRow.hpp"

#include <array>
#include <cmath>

#include "hook/Installation.hpp"
#include "objc/Replacement.hpp"
#include "phone/Parts.hpp"
#include "phone/recents/PHRecentCall.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "platform/Substrate.hpp"
#include "recents/Replacements.hpp"
#include "recents/RowTexts.hpp"
#include "support/StubCompanion.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace bench {
namespace {

using objc::Owned;
using objc::send;

const CallAnswers *g_answers = nullptr;  // of the row that is laid out
objc::Saved<void(PHRecentsCell, SEL)> g_layOutCell;

id number(id, SEL) { return g_answers->number; }
id date(id, SEL) { return g_answers->date; }
id contact(id, SEL) { return g_answers->contact; }
id formatted(id, SEL, id number) { return number; }
id personWithNumber(id, SEL, id) { return g_answers->contact; }
CGFloat ceiling(id, SEL, CGFloat value) { return std::ceil(value); }
void putLabelBack(PHRecentsCell self, SEL) { self.callerLabel().setText("未知"_ns); }

void replace(Class cls, SEL selector, auto *by, IMP *saved = nullptr) {
    MSHookMessageEx(cls, selector, reinterpret_cast<IMP>(by), saved);
}

/// Once a process.
void install() {
    test::StubCompanion::registerClasses();
    const Class call = "PHRecentCallBefore8"_cls;
    replace(call, "destination"_sel, &number);
    replace(call, "date"_sel, &date);
    replace(call, "addressBookRecord"_sel, &contact);
    // These the stub does without.
    class_addMethod("ZQContactService"_cls, "getPersonWithRecordID:"_sel,
                    reinterpret_cast<IMP>(&personWithNumber), "@@:@");
    class_addMethod(object_getClass(objc::asObject("ZQPhoneNumber"_cls)),
                    "getFormattedNumberWithNumber:"_sel, reinterpret_cast<IMP>(&formatted), "@@:@");
    replace(object_getClass(objc::asObject("ZQMathUtil"_cls)), "getCeilCGFloat:"_sel, &ceiling);
    replace("PHRecentsCell"_cls, "layoutSubviews"_sel, &putLabelBack, g_layOutCell.slot());
    hook::registerClasses();
    hook::initializeRecentsHook();
}

Owned<NSObject> makeContact(NSString number) {
    const std::array<id, 2> numbers = {number, "075501238800"_ns};
    const std::array<id, 2> labels = {"手机"_ns, "公司"_ns};
    const auto phones = phone::makeRecord("ABMultiValueRecord", "initWithValues:labels:"_sel,
                                          sim::array(numbers), sim::array(labels));
    return phone::makeRecord("ABPersonRecord", "initWithName:phones:"_sel, "周砚"_ns, phones.get());
}

Owned<UIView> makeCell() {
    const id memory = send<id()>(objc::classOf<phone::PHRecentsCell>(), "alloc"_sel);
    const auto cell = send<UIView(NSInteger, NSString)>(
        memory, "initWithStyle:reuseIdentifier:"_sel, 0, "PHRecentsCell"_ns);
    cell.setFrame(rect(0, 0, 320, 48));
    return Owned<UIView>::adopt(cell);
}

}  // namespace

void ConstantRow::prepare(double iosVersion) {
    sim::Device::setCurrent({iosVersion < 7.1 ? "7.0" : "7.1", {320, 568}, 2});
    sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
    auto &stub = test::StubCompanion::current();
    stub = {};
    stub.iosVersion = iosVersion;
    [[maybe_unused]] static const bool g_installed = (install(), true);
    recents::RowTexts::shared()->setEntries(objc::create<NSMutableDictionary>());
}

ConstantRow::ConstantRow(RowKind kind, const char *number, double date)
    : answers_{.number = Owned<NSString>::share(NSString::withUTF8String(number)),
               .date = Owned<NSDate>::share(
                   send<NSDate(double)>("NSDate"_cls, "dateWithTimeIntervalSince1970:"_sel, date)),
               .contact = {}},
      cell_(makeCell()) {
    auto &stub = test::StubCompanion::current();
    stub.areas[number] = "云南";
    stub.identities[number] = {.number = number, .label = "诈骗电话"};
    if (kind == RowKind::StrangerWithText) {
        stub.rowTexts["诈骗电话"] = "诈骗电话 | 37人标记";
    }
    if (kind == RowKind::ContactWithNumbers) {
        answers_.contact = makeContact(answers_.number);
    }
    auto *const shown = sim::instance<phone::PHRecentsCell>(cell_);
    shown->setToday(date);
    shown->setCall(phone::PHRecentCall::create({.number = number, .date = date}));
    g_layOutCell(cell(), "layoutSubviews"_sel);
    layOut();
}

void ConstantRow::layOut() const {
    g_answers = &answers_;
    send<void()>(cell_, "layoutSubviews"_sel);
}

void ConstantRow::layOutUnhooked() const {
    g_answers = &answers_;
    objc::saved<&replace_PHRecentsCell_layoutSubviews>(cell(), "layoutSubviews"_sel);
}

}  // namespace bench
