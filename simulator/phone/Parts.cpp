// Making labels and pictures.
#include "phone/Parts.hpp"

#include "phone/Resources.hpp"
#include "uikit/SimButton.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimImage.hpp"

namespace phone {

objc::Owned<UILabel> makeLabel(CGRect frame, CGFloat points, sim::TextAlignment alignment) {
    auto label = objc::create<UILabel(CGRect)>("initWithFrame:"_sel, frame);
    label->setFont(UIFont::systemFontOfSize(points));
    simLabel(label)->setTextAlignment(alignment);
    return label;
}

SimLabel *simLabel(UILabel label) { return objc::Wire<SimLabel *>::from(label.get()); }

UIImage picture(const std::filesystem::path &file) {
    return UIImage(objc::Wire<SimImage *>::to(
        SimImage::withContentsOfFile(NSString::withUTF8String(file.c_str()))));
}

UIImage picture(const char *name) {
    return picture(pictureFolder() / (std::string(name) + ".png"));
}

objc::Owned<UIImageView> makePicture(const char *name, CGPoint origin) {
    const UIImage image = picture(name);
    const CGSize size = objc::send<CGSize()>(image, "size"_sel);
    auto view = objc::create<UIImageView(CGRect)>("initWithFrame:"_sel, CGRect{origin, size});
    view->setImage(image);
    return view;
}

objc::Owned<UIView> makeButton(CGRect frame, const char *icon, NSString name) {
    auto button = makeView<SimButton>(frame);
    objc::Wire<SimButton *>::from(button->get())->setAccessibilityLabel(name);
    objc::send<void(UIImage, NSUInteger)>(button.get(), "setImage:forState:"_sel, picture(icon),
                                          kStateNormal);
    return button;
}

void onTouch(UIView control, NSObject target, SEL action, NSUInteger events) {
    objc::send<void(NSObject, SEL, NSUInteger)>(control, "addTarget:action:forControlEvents:"_sel,
                                                target, action, events);
}

UIFont boldFont(CGFloat points) {
    return objc::send<UIFont(CGFloat)>("UIFont"_cls, "boldSystemFontOfSize:"_sel, points);
}

UIFont lightFont(CGFloat points) {
    return objc::send<UIFont(NSString, CGFloat)>("UIFont"_cls, "fontWithName:size:"_sel,
                                                 "HelveticaNeue-Light"_ns, points);
}

void drawLine(NSString text, UIFont font, CGRect within, sim::TextAlignment alignment,
              UIColor textColor) {
    objc::send<void()>(textColor, "set"_sel);
    objc::send<CGSize(CGRect, UIFont, sim::LineBreak, sim::TextAlignment)>(
        text, "drawInRect:withFont:lineBreakMode:alignment:"_sel, within, font,
        sim::LineBreak::TruncateTail, alignment);
}

UIColor color(int red, int green, int blue) {
    constexpr CGFloat kFull = 255;
    return SimColor::withRGBA(red / kFull, green / kFull, blue / kFull, 1);
}

}  // namespace phone
