// Call infos.
#include "phone/recents/PHCallInfoView.hpp"

#include "phone/recents/RecentsDate.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr CGFloat kTextLeft = 35;
constexpr CGFloat kCallHeight = 84;

const char *kindOf(const RecentCallFacts &facts) {
    if (!facts.incoming) {
        return facts.answered ? "呼出" : "已取消的呼叫";
    }
    return facts.answered ? "来电" : "未接来电";
}

}  // namespace

void PHCallInfoView::define() {
    sim::defined("PHCallInfoView",
                 objc::ClassBuilder<PHCallInfoView>("PHCallInfoView", "UIView").finish());
}

objc::Owned<UIView> PHCallInfoView::make(const PHRecentCall &call) {
    const CGFloat width = sim::Device::current().screen.width;
    const auto &date = call.facts().date;
    auto view = makeView<PHCallInfoView>(rect(0, 0, width, kCallHeight));
    const auto addText = [&](const std::string &text, CGRect frame, UIFont font) {
        const auto label = makeLabel(frame, 14, sim::TextAlignment::Left);
        label->setText(sim::string(text));
        label->setFont(font);
        view->addSubview(label);
    };
    const auto addLine = [&](CGFloat x, CGFloat y) {
        const auto line = makeView<SimView>(rect(x, y, width - x, 0.5));
        line->setBackgroundColor(color(200, 199, 204));
        view->addSubview(line);
    };
    addLine(kTextLeft, 0);
    addText(date ? dayText(*date) : "", rect(kTextLeft, 16, width - kTextLeft, 20), boldFont(14));
    addText(date ? timeText(*date) : "", rect(kTextLeft, 44, 80, 20), UIFont::systemFontOfSize(14));
    const CGFloat kindLeft = kTextLeft + (date ? 80 : 0);
    addText(kindOf(call.facts()), rect(kindLeft, 44, width - kindLeft, 20),
            UIFont::systemFontOfSize(14));
    addLine(kTextLeft, kCallHeight - 0.5);
    return view;
}

}  // namespace phone
