// UIImage over the drawing core's pictures.
#include "uikit/SimImage.hpp"

#include <string>

#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/Registration.hpp"

namespace {

std::filesystem::path &namedFolder() {
    static std::filesystem::path g_folder;
    return g_folder;
}

}  // namespace

void SimImage::setNamedFolder(const std::string &folder) { namedFolder() = folder; }

SimImage *SimImage::withPicture(const sim::Picture &picture) {
    auto *const image = sim::autoreleased<SimImage>();
    image->picture_ = picture;
    return image;
}

SimImage *SimImage::ofFile(const std::filesystem::path &file) {
    const auto picture = sim::Picture::load(file);
    SimImage *const image = picture ? withPicture(*picture) : nullptr;
    if (image != nullptr) {
        image->name_ = file.stem();
    }
    return image;
}

SimImage *SimImage::withContentsOfFile(NSString path) { return ofFile(sim::utf8(path)); }

SimImage *SimImage::named(NSString name) {
    std::filesystem::path file = sim::utf8(name);
    if (file.empty() || namedFolder().empty()) {
        return nullptr;
    }
    if (!file.has_extension()) {
        file += ".png";
    }
    return ofFile(namedFolder() / file);
}

id SimImage::initWithContentsOfFile(NSString path) {
    const std::filesystem::path file = sim::utf8(path);
    picture_ = sim::Picture::load(file);
    name_ = file.stem();
    if (!picture_) {
        objc::send<void()>(id(*this), "release"_sel);
        return nullptr;
    }
    return *this;
}

CGSize SimImage::size() const { return picture_ ? picture_->size() : CGSize{}; }

SimImage *SimImage::resizableImageWithCapInsets(UIEdgeInsets insets) {
    auto *const image = sim::autoreleased<SimImage>();
    image->picture_ = picture_;
    image->name_ = name_;
    image->renderingMode_ = renderingMode_;
    image->capInsets_ = insets;
    return image;
}

SimImage *SimImage::imageWithRenderingMode(NSInteger mode) {
    SimImage *const image = resizableImageWithCapInsets(capInsets_);
    image->renderingMode_ = mode;
    return image;
}

void SimImage::drawInRect(CGRect rect) {
    auto *const context = sim::GraphicsContext::current();
    if (context != nullptr && picture_) {
        context->canvas.draw(*picture_, rect, capInsets_);
    }
}

void SimImage::define() {
    using objc::function;
    using objc::member;
    sim::defined(
        "UIImage",
        objc::ClassBuilder<SimImage>("UIImage", "NSObject")
            .classMethod("imageWithContentsOfFile:"_sel, function<&SimImage::withContentsOfFile>)
            .classMethod("imageNamed:"_sel, function<&SimImage::named>)
            .method("initWithContentsOfFile:"_sel, member<&SimImage::initWithContentsOfFile>)
            .method("size"_sel, member<&SimImage::size>)
            .method("scale"_sel, member<&SimImage::scale>)
            .method("capInsets"_sel, member<&SimImage::capInsets>)
            .method("resizableImageWithCapInsets:"_sel,
                    member<&SimImage::resizableImageWithCapInsets>)
            .method("renderingMode"_sel, member<&SimImage::renderingMode>)
            .method("imageWithRenderingMode:"_sel, member<&SimImage::imageWithRenderingMode>)
            .method("drawInRect:"_sel, member<&SimImage::drawInRect>)
            .finish());
}
