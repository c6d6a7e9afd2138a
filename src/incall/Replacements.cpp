// The in-call screen's replaced methods.
#include "incall/Replacements.hpp"

#include "companion/IosVersion.hpp"
#include "companion/ZQDialCloudQueryService.hpp"
#include "incall/AddedViews.hpp"
#include "incall/ContactRegion.hpp"
#include "incall/ZQDialWaitUIHook.hpp"
#include "objc/Silently.hpp"
#include "platform/LayoutPass.hpp"

constinit BOOL g_isThreePartyCall = 0;

namespace {

/// Work of ours on the one hook object, which is there once the hooks are installed. Returns
/// whether it came to its end.
template <class Work>
bool withHook(Work work) {
    ZQDialWaitUIHook *const hook = objc::Shared<ZQDialWaitUIHook>::get();
    return hook && objc::silently([&] { work(*hook); });
}

/// The same, for a display: half a layout is worse than none.
template <class Work>
void layOut(InCallDisplay display, Work work) {
    const LayoutPass pass(display);
    if (!withHook(work)) {
        objc::silently([&] { incall::hideAddedViews(display); });
        objc::silently([&] { incall::removeContactRegion(display); });
    }
}

/// Another add-on of this kind, which then has the in-call screen to itself. Looked for at every
/// call, so that it may come and go without a restart.
bool hasOtherAddOn() {
    return NSFileManager::defaultManager().fileExistsAtPath(
        "/Library/MobileSubstrate/DynamicLibraries/FennDial.dylib"_ns);
}

}  // namespace

id replace_TUTelephonyCall_initWithCall_(TUTelephonyCall self, SEL selector, const void *call) {
    const id created = objc::saved<&replace_TUTelephonyCall_initWithCall_>(self, selector, call);
    objc::silently([] {
        if (auto *const service = ZQDialCloudQueryService::currentService()) {
            service->forcelyResetData();
        }
    });
    withHook([&](auto &hook) {
        if (!hasOtherAddOn()) {
            hook.setCurrentOutCall(TUTelephonyCall(created));
        }
    });
    return created;
}

void replace_TUTelephonyCall_dealloc(TUTelephonyCall self, SEL selector) {
    withHook([&](auto &hook) { hook.clearCurrentCall(self); });
    objc::saved<&replace_TUTelephonyCall_dealloc>(self, selector);
}

void replace_InCallLCDField_layoutSubviews(InCallLCDField self, SEL selector) {
    objc::saved<&replace_InCallLCDField_layoutSubviews>(self, selector);
    layOut(self, [&](auto &hook) {
        if (!hook.shouldHookUI()) {
            return;
        }
        if (ios::is71() && hook.isCurrentCallInAddresBook()) {
            hook.layoutContactRegionInfoOfView(self);
            return;
        }
        LayoutPass::untilCurrent(self, [&] {
            if (hook.addNumInfoToLCDField(self) && !LayoutPass::isOvertaken(self)) {
                hook.layoutSubviewsOfLCDField(self);
            }
        });
    });
}

void replace_InCallLCDView_layoutSubviews(InCallLCDView self, SEL selector) {
    objc::saved<&replace_InCallLCDView_layoutSubviews>(self, selector);
    layOut(self, [&](auto &hook) {
        const bool is71 = ios::is71();
        const bool hooksUI = hook.shouldHookUI();
        if (is71 && hook.isCurrentCallInAddresBook()) {
            if (hooksUI) {
                hook.layoutContactRegionInfoOfView(self);
            }
            return;
        }
        LayoutPass::untilCurrent(self, [&] {
            const bool hasDescription = hooksUI && hook.addDescriptionLabel(self);
            // On 7.1 the picture is asked for even where no information is wanted.
            const bool hasPicture = (is71 || hooksUI) && hook.isBrandNumber();
            if (!LayoutPass::isOvertaken(self)) {
                hook.layoutSubviewOfLCDView(self, hasPicture, hasDescription);
            }
        });
    });
}

void replace_InCallController__callStatusChangedNotification_(InCallController self, SEL selector,
                                                              NSNotification notification) {
    withHook([&](auto &hook) {
        // Read, but the calls that were taken note of are what counts.
        [[maybe_unused]] const auto count = objc::read<uint32_t>(self, "_currentCallCount"_ivar);
        const NSDictionary info = notification.userInfo();
        if (hook.moreThanOneCall() && info &&
            integerOf(info.objectForKey("TUCallCenterCallStatus"_ns)) == kCallEnded) {
            const NSObject ended = info.objectForKey("TUCallCenterCall"_ns);
            hook.clearCurrentCall(TUTelephonyCall(ended));
        }
    });
    objc::saved<&replace_InCallController__callStatusChangedNotification_>(self, selector,
                                                                           notification);
}

void replace_TPLCDTextView_setCenterText_(TPLCDTextView self, SEL selector, BOOL center) {
    bool centred = center != 0;
    withHook([&](auto &hook) { centred = centred || !hook.moreThanOneCall(); });
    objc::saved<&replace_TPLCDTextView_setCenterText_>(self, selector,
                                                       objc::Wire<bool>::to(centred));
}

void replace_TPLCDTextView_setLCDTextFont_(TPLCDTextView self, SEL selector, UIFont font) {
    constexpr CGFloat kLargestReplaced = 18;
    UIFont shown = font;
    withHook([&](auto &hook) {
        if (font.pointSize() <= kLargestReplaced && ZQPhoneUtil::isScreen35Inch() &&
            !hook.isCurrentCallInAddresBook()) {
            shown = UIFont::withName("HelveticaNeue"_ns, incall::kFontSize);
        }
    });
    objc::saved<&replace_TPLCDTextView_setLCDTextFont_>(self, selector, shown ? shown : font);
}

void replace_TPWallpaperView_setContactImage_animated_(TPWallpaperView self, SEL selector,
                                                       UIImage image, BOOL animated) {
    objc::saved<&replace_TPWallpaperView_setContactImage_animated_>(self, selector, image,
                                                                    animated);
    withHook([&](auto &hook) { hook.hasSystemBigAvatar(static_cast<bool>(image)); });
}
