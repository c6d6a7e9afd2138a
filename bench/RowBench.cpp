// The layout of a recents row in which nothing changed, its text in the cache: what the add-on adds
// to it, against the sends alone that its steps cannot do without. And the same layout with many
// calls in the cache, which must not cost more.
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>

#include "CachedCalls.hpp"
#include "ConstantRow.hpp"
#include "Share.hpp"
#include "companion/Interface.hpp"
#include "platform/AddressBook.hpp"
#include "recents/RowTexts.hpp"
#include "support/StubCompanion.hpp"

namespace {

using bench::ConstantRow;
using bench::RowKind;
using objc::Owned;
using objc::send;

constexpr auto kNumber = "17700000061";
constexpr double kDate = 1400000000;  // seconds since 1970
constexpr std::u16string_view kKeyEnd = u"_1400000000";

// Messages that requiredSends() dispatches; what others send to answer them is not counted.
constexpr int kSendsOfText = 51;
constexpr int kSendsWithoutText = 25;
constexpr int kSendsOfContact = 74;
constexpr int kSendsBefore71 = 59;

recents::RowTexts &rowTexts() { return *recents::RowTexts::shared(); }

// The sends of one layout and nothing else: no decision, no call of ours, arguments as they come.

NSString sendNumber(NSObject call) {
    ZQPhoneUtil::isLaterThanIOSVersion(8.0, true);
    call.respondsToSelector("destination"_sel);
    return send<NSString()>(call, "destination"_sel);
}

NSString sendNewNumber(NSObject call) {
    return send<NSString(NSString)>(NSString::classObject(), "stringWithString:"_sel,
                                    sendNumber(call));
}

void sendContactTest(NSObject call) {
    ZQPhoneUtil::isLaterThanIOSVersion(8.0, true);
    call.respondsToSelector("addressBookRecord"_sel);
    send<id()>(call, "addressBookRecord"_sel);
}

/// As far as it goes in a row that is not swiped.
void sendMenu(UIView cell) {
    const auto firstOf = [](UIView view) {
        const NSArray subviews = view.subviews();
        subviews.count();
        const auto first = subviews.objectAtIndex(0).as<UIView>();
        first.isKindOfClass("UITableViewCellScrollView"_cls);
        return first;
    };
    firstOf(firstOf(cell));
}

NSString sendCachedText(NSObject call) {
    send<NSDate()>(call, "date"_sel).secondsSince1970();
    const NSString number = sendNumber(call);
    char16_t units[32];
    const NSUInteger length = number.length();
    number.getCharacters(units, {0, length});
    std::ranges::copy(kKeyEnd, units + length);
    const auto key = objc::create<NSString(const char16_t *, NSUInteger)>(
        "initWithCharacters:length:"_sel, units, length + kKeyEnd.size());
    return rowTexts().entries().objectForKey(key).as<NSString>();
}

NSString sendContactText(NSObject call) {
    {
        const auto parsed = ZQPhoneNumber::parsed(sendNewNumber(call));
        const void *const person =
            ZQContactService::currentService().getPersonWithRecordID(parsed->pureNumber());
        const AddressBookCopy values(ABRecordCopyValue(person, kABPersonPhoneProperty));
        ABMultiValueGetCount(values.get());
        const AddressBookCopy texts(ABMultiValueCopyArrayOfAllValues(values.get()));
        const auto set = Owned<NSMutableSet>::adopt(
            send<NSMutableSet(NSObject)>(send<id()>(NSMutableSet::classObject(), "alloc"_sel),
                                         "initWithArray:"_sel, objectOf(texts.get())));
        set->count();
    }
    const NSString number = sendNewNumber(call);
    const auto parsed = ZQPhoneNumber::parsed(number);
    const NSString area = ZQPhoneNumber::areaNameOfNumber(parsed->pureNumber());
    area.length();
    return format<"%@  %@">(ZQPhoneNumber::getFormattedNumberWithNumber(number), area);
}

/// Of texts whose widths are known: their units are compared, nothing is measured.
void sendUnits(NSString text) {
    char16_t units[64];
    text.getCharacters(units, {0, text.length()});
}

CGFloat sendWidths(PHRecentsCell cell, NSString text) {
    const PHRecentsDateLabel label = cell.dateLabel();
    const NSString designator = label.timeDesignator();
    designator.length();
    label.font();
    sendUnits(format<"%@ %@">(designator, label.text()));
    ZQMathUtil::getCeilCGFloat(40);
    cell.callerLabel().font();
    sendUnits(text);
    return ZQMathUtil::getCeilCGFloat(60);
}

void sendShowing(UIView view, UIView content, CGRect frame) {
    view.setHidden(false);
    content.bringSubviewToFront(view);
    view.setFrame(frame);
}

void requiredSends(PHRecentsCell cell, RowKind kind, bool isBefore71) {
    const NSObject call = cell.call();
    sendContactTest(call);
    ZQPhoneUtil::isEalierThanIOSVersion(7.1, false);
    if (isBefore71) {
        sendMenu(cell);
    }
    const objc::AutoreleasePool pool;
    const NSString text =
        kind == RowKind::ContactWithNumbers ? sendContactText(call) : sendCachedText(call);
    text.length();
    const UIView content = cell.contentView();
    if (kind == RowKind::StrangerWithoutText) {
        content.viewWithTag(2534).setHidden(true);
        cell.viewWithTag(2533).setHidden(true);
        return;
    }
    const CGFloat width = sendWidths(cell, text);
    const auto line = content.viewWithTag(2534).as<UILabel>();
    cell.callerLabel().text().length();
    cell.callerLabel().setText(nullptr);
    sendShowing(line, content, rect(34, 28, 150, 15));
    line.text();
    sendShowing(cell.viewWithTag(2533), content, rect(width, 29, 15, 12));
}

void layOutRow(benchmark::State &state, RowKind kind, double iosVersion, int sends) {
    const objc::AutoreleasePool pool;
    ConstantRow::prepare(iosVersion);
    const ConstantRow row(kind, kNumber, kDate);
    const bool isBefore71 = iosVersion < 7.1;
    bench::measureShare(
        state, [&] { row.layOut(); }, [&] { row.layOutUnhooked(); },
        [&] { requiredSends(row.cell(), kind, isBefore71); });
    state.counters["sends"] = sends;
}

BENCHMARK_CAPTURE(layOutRow, stranger_with_text_ios_7_1, RowKind::StrangerWithText, 7.1,
                  kSendsOfText)
    ->UseManualTime()
    ->Iterations(100);
BENCHMARK_CAPTURE(layOutRow, stranger_without_text_ios_7_1, RowKind::StrangerWithoutText, 7.1,
                  kSendsWithoutText)
    ->UseManualTime()
    ->Iterations(100);
BENCHMARK_CAPTURE(layOutRow, contact_with_numbers_ios_7_1, RowKind::ContactWithNumbers, 7.1,
                  kSendsOfContact)
    ->UseManualTime()
    ->Iterations(100);
BENCHMARK_CAPTURE(layOutRow, stranger_with_text_ios_7_0, RowKind::StrangerWithText, 7.0,
                  kSendsBefore71)
    ->UseManualTime()
    ->Iterations(100);

void layOutAmongCachedCalls(benchmark::State &state) {
    const objc::AutoreleasePool pool;
    ConstantRow::prepare(7.1);
    rowTexts().setEntries(bench::cachedCalls(state.range(0)));
    std::vector<std::unique_ptr<ConstantRow>> rows;
    for (const double date : bench::cachedSeconds(state.range(0))) {
        rows.push_back(
            std::make_unique<ConstantRow>(RowKind::StrangerWithText, bench::kCachedNumber, date));
    }
    size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        const objc::AutoreleasePool inner;
        rows[next]->layOut();
        next = (next + 1) % rows.size();
    }
    if (!test::StubCompanion::current().queries.empty()) {
        state.SkipWithError("a row was not found in the cache");
    }
    rowTexts().setEntries(objc::create<NSMutableDictionary>());
}

BENCHMARK(layOutAmongCachedCalls)->Arg(1)->Arg(1000)->Arg(100000);

}  // namespace
