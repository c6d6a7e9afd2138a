// UILabel as iOS 7 shows it: one line, truncated at its tail, text centred vertically.
#pragma once

#include "uikit/SimView.hpp"
#include "uikit/drawing/TextLayout.hpp"

class SimLabel : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);

    NSString text() const;
    /// Replaces an attributed text as well. Views above that are under Auto Layout are laid out
    /// anew when the text is another one.
    void setText(NSString text);
    NSAttributedString attributedText() const;
    bool isAttributed() const { return static_cast<bool>(attributedText_); }
    /// Font and colour become those of its first position, where it has any.
    void setAttributedText(NSAttributedString text);
    UIFont font() const { return font_; }
    /// Nil brings back the default, the system font of 17 points.
    void setFont(UIFont font);
    UIColor textColor() const { return textColor_; }
    /// Nil brings back the default, black.
    void setTextColor(UIColor color);
    sim::TextAlignment textAlignment() const { return textAlignment_; }
    void setTextAlignment(sim::TextAlignment alignment) { change(textAlignment_, alignment); }
    sim::LineBreak lineBreakMode() const { return lineBreakMode_; }
    void setLineBreakMode(sim::LineBreak mode) { change(lineBreakMode_, mode); }
    NSInteger numberOfLines() const { return numberOfLines_; }
    void setNumberOfLines(NSInteger lines) { change(numberOfLines_, lines); }
    bool adjustsFontSizeToFitWidth() const { return adjustsFontSize_; }
    void setAdjustsFontSizeToFitWidth(bool adjusts) { adjustsFontSize_ = adjusts; }
    CGFloat minimumScaleFactor() const { return minimumScaleFactor_; }
    void setMinimumScaleFactor(CGFloat factor) { minimumScaleFactor_ = factor; }

    /// Whole pixels, rounded up; zero without text.
    CGSize sizeThatFits(CGSize room) const;
    CGSize intrinsicContentSize() const;
    /// The rectangle of the text as it is drawn in `bounds`, aligned and centred vertically.
    CGRect textRectForBounds(CGRect bounds, NSInteger lines) const;
    void drawRect(CGRect rect);
    void drawTextInRect(CGRect rect);

  private:
    void textHasChanged();
    sim::StyledText styled() const;
    sim::TextLayout laidOut(CGSize room, NSInteger lines) const;
    /// The text in the largest font that fits `width` on one line, where the label is so set.
    void shrinkToFit(sim::StyledText &text, CGFloat width) const;

    objc::Owned<NSString> text_;
    objc::Owned<NSAttributedString> attributedText_;
    objc::Owned<UIFont> font_;
    objc::Owned<UIColor> textColor_;
    NSInteger numberOfLines_ = 1;
    CGFloat minimumScaleFactor_ = 0;
    sim::TextAlignment textAlignment_ = sim::TextAlignment::Left;
    sim::LineBreak lineBreakMode_ = sim::LineBreak::TruncateTail;
    bool adjustsFontSize_ = false;
};
