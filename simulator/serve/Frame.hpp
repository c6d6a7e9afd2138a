// A phone's picture as the page gets it: of what is drawn only the part that changed.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "serve/SharedPicture.hpp"
#include "uikit/drawing/Canvas.hpp"

namespace serve {

class Frame {
  public:
    /// `side` is the phone's number in the pictures' headers.
    Frame(sim::Size screen, unsigned char side);

    /// Where the next picture is drawn.
    sim::Canvas &canvas() { return next_; }
    /// Writes header and pixels of what differs between the canvas and the picture before, which
    /// the canvas then becomes. Returns how many bytes that was; 0 when nothing differs.
    size_t write(std::span<unsigned char> bytes);
    /// Of the last picture that was written, counted from 1.
    std::uint32_t number() const { return number_; }

  private:
    sim::Canvas next_;
    sim::Canvas last_;
    unsigned char side_;
    bool isFirst_ = true;
    std::uint32_t number_ = 0;
};

}  // namespace serve
