// Making labels and pictures.
#include "phone/Parts.hpp"

#include "phone/Resources.hpp"
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

UIImage picture(const char *name) {
    const auto file = pictureFolder() / (std::string(name) + ".png");
    return UIImage(objc::Wire<SimImage *>::to(
        SimImage::withContentsOfFile(NSString::withUTF8String(file.c_str()))));
}

objc::Owned<UIImageView> makePicture(const char *name, CGPoint origin) {
    const UIImage image = picture(name);
    const CGSize size = objc::send<CGSize()>(image, "size"_sel);
    auto view = objc::create<UIImageView(CGRect)>("initWithFrame:"_sel, CGRect{origin, size});
    view->setImage(image);
    return view;
}

UIFont lightFont(CGFloat points) {
    return objc::send<UIFont(NSString, CGFloat)>("UIFont"_cls, "fontWithName:size:"_sel,
                                                 "HelveticaNeue-Light"_ns, points);
}

UIColor color(int red, int green, int blue) {
    constexpr CGFloat kFull = 255;
    return SimColor::withRGBA(red / kFull, green / kFull, blue / kFull, 1);
}

}  // namespace phone
