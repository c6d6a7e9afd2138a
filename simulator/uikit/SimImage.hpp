// UIImage: a picture of a file, possibly with caps that keep their size when it is stretched.
#pragma once

#include <optional>
#include <string>

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"
#include "uikit/drawing/Picture.hpp"

class SimImage : public objc::Instance {
  public:
    static void define();

    /// Nil when there is no such picture. For "x.png" a file "x@2x.png" beside it is preferred.
    static SimImage *withContentsOfFile(NSString path);
    /// The file of that name in the folder of setNamedFolder; ".png" may be left out.
    static SimImage *named(NSString name);
    /// Where imageNamed: looks; without one it finds nothing.
    static void setNamedFolder(const std::string &folder);
    /// A new autoreleased image of a picture that was drawn or loaded elsewhere.
    static SimImage *withPicture(const sim::Picture &picture);

    id initWithContentsOfFile(NSString path);
    /// Of the file, without its ending; empty for an image of no file.
    const std::string &name() const { return name_; }
    /// Points; zero for an image without picture.
    CGSize size() const;
    CGFloat scale() const { return picture_ ? picture_->scale() : 1; }
    UIEdgeInsets capInsets() const { return capInsets_; }
    SimImage *resizableImageWithCapInsets(UIEdgeInsets insets);
    /// 0 automatic, 1 original, 2 template (drawn in the tint colour).
    NSInteger renderingMode() const { return renderingMode_; }
    SimImage *imageWithRenderingMode(NSInteger mode);
    void drawInRect(CGRect rect);

    const std::optional<sim::Picture> &picture() const { return picture_; }

  private:
    static SimImage *ofFile(const std::filesystem::path &file);

    std::optional<sim::Picture> picture_;
    std::string name_;
    UIEdgeInsets capInsets_{};
    NSInteger renderingMode_ = 0;
};
