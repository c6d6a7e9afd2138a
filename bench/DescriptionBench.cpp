// What the in-call screen says of a caller whose identity is in the cache, one benchmark for each
// kind: its time, and the memory it asks for beyond what the companion asks for to answer and the
// text that is the result.
#include <benchmark/benchmark.h>

#include "Allocations.hpp"
#include "companion/ZQDialCloudQueryService.hpp"
#include "incall/Description.hpp"
#include "support/Calls.hpp"
#include "support/StubCompanion.hpp"

namespace {

using test::IdentityFacts;

constexpr auto kNumber = "17700000061";

struct Kind {
    IdentityFacts facts;
    // Sends the companion the questions that the kind asks, and makes the texts of the answer.
    void (*required)(ZQNumberIdentity identity) = nullptr;
};

void needsRegion(ZQNumberIdentity identity) {
    ZQPhoneNumber::descriptionOfNumber(identity.number());
}

void needsLabel(ZQNumberIdentity identity) {
    needsRegion(identity);
    benchmark::DoNotOptimize(identity.identity().get());
}

/// A text of its own beside the label.
void needsText(ZQNumberIdentity identity) {
    needsLabel(identity);
    const char16_t units[12] = {};
    benchmark::DoNotOptimize(NSString::withCharacters(units, std::size(units)).get());
}

void needsForeignText(ZQNumberIdentity identity) {
    needsRegion(identity);
    const char16_t units[18] = {};
    benchmark::DoNotOptimize(NSString::withCharacters(units, std::size(units)).get());
}

void needsBrand(ZQNumberIdentity identity) {
    needsRegion(identity);
    benchmark::DoNotOptimize(identity.brandInfo().get());
}

void needsPartner(ZQNumberIdentity identity) {
    needsText(identity);
    const auto partner = ZQPartnerManager::defaultManager().getPartnerItemById(6000);
    benchmark::DoNotOptimize(partner.name().get());
    NSFileManager::defaultManager().fileExistsAtPath(partner.getIconImagePath());
}

const Kind kRegion{{.label = "送水", .type = IdentityKind::Region}, &needsRegion};
const Kind kOwnMark{{.label = "邻居", .type = IdentityKind::OwnMark}, &needsLabel};
const Kind kForeign{{.type = IdentityKind::Foreign}, &needsForeignText};
const Kind kBrand{
    {.type = IdentityKind::Brand, .brandName = "云雀速递", .brandLogoPath = "/logo.png"},
    &needsBrand};
const Kind kOneMark{{.label = "骚扰电话", .type = IdentityKind::UserMark, .numOfMark = 1},
                    &needsText};
const Kind kMarks{{.label = "诈骗电话", .type = IdentityKind::UserMark, .numOfMark = 37},
                  &needsText};
const Kind kPartner{{.label = "诊所", .type = IdentityKind::StoredCloudAnswer, .numOfMark = 6000},
                    &needsPartner};

void describe(benchmark::State &state, const Kind &kind) {
    const objc::AutoreleasePool pool;
    static bool g_registered = false;
    if (!g_registered) {
        test::StubCompanion::registerClasses();
        ZQDialCloudQueryService::define().finish();
        g_registered = true;
    }
    auto &stub = test::StubCompanion::current();
    stub = {};
    stub.descriptions = {{kNumber, "云南昆明"}};
    stub.identities[kNumber] = kind.facts;
    stub.identities[kNumber].number = kNumber;
    stub.partners[6000] = {.id = 6000, .name = "安澜诊所", .iconImagePath = "/dev/null"};

    auto *const service = ZQDialCloudQueryService::currentService();
    service->forcelyResetData();
    const NSString number = NSString::withUTF8String(kNumber);
    const auto call = test::beginCall({kNumber});
    incall::CallSlots calls;
    calls.add(TUTelephonyCall(call));
    const auto cost = [](auto work) {
        const objc::AutoreleasePool inner;
        const long before = bench::allocations();
        work();
        return bench::allocations() - before;
    };
    const auto described = [&] {
        benchmark::DoNotOptimize(incall::describe(number, calls).text.get());
    };
    described();
    const long whole = cost(described);
    const long required = cost([&] {
        const NSString pure = ZQPhoneNumber::parsed(number).autorelease().pureNumber();
        kind.required(service->getNumberIdentity(pure, false));
    });
    for ([[maybe_unused]] auto _ : state) {
        const objc::AutoreleasePool inner;
        described();
    }
    state.counters["allocations"] = static_cast<double>(whole);
    state.counters["beyond"] = static_cast<double>(whole - required);
}

BENCHMARK_CAPTURE(describe, region, kRegion);
BENCHMARK_CAPTURE(describe, own_mark, kOwnMark);
BENCHMARK_CAPTURE(describe, foreign, kForeign);
BENCHMARK_CAPTURE(describe, brand, kBrand);
BENCHMARK_CAPTURE(describe, one_mark, kOneMark);
BENCHMARK_CAPTURE(describe, marks, kMarks);
BENCHMARK_CAPTURE(describe, partner, kPartner);

}  // namespace
